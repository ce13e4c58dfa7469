#pragma once

#include <QVariant>
#include <QWidget>

class QPushButton;
class QTreeWidget;

/// A list of rows with check boxes, and two buttons, "All" and "None", that check and clear all of
/// them.
///
/// It names its parts after itself: in a list with the object name "Readers" they are `lvwReaders`,
/// `cmdReaders_0` (All) and `cmdReaders_1` (None).
class CheckList : public QWidget {
    Q_OBJECT
public:
    explicit CheckList(QWidget* parent = nullptr);

    /// The header of the one column, translated. A list has none at first.
    void SetHeader(const QString& text);

    void Clear();
    /// Appends a row, checked. The tool tip is plain text.
    void Add(const QString& text, const QVariant& tag, const QString& toolTip = {});
    int Count() const;
    /// The tags of the checked rows, from top to bottom.
    QVariantList CheckedTags() const;

private:
    void NameParts(const QString& name);
    void CheckAll(Qt::CheckState state);

    QTreeWidget* m_list;
    QPushButton* m_all;
    QPushButton* m_none;
};
