#pragma once

#include <QComboBox>

class QFrame;
class QLabel;
class QLineEdit;
class QListView;
class QSortFilterProxyModel;

/// A combo box for many entries. Its list scrolls, is as wide as its longest entry (as far as the
/// screen allows), and has a field to search in: only the entries that contain what was typed are
/// listed. Typing a letter while the list is closed opens it and searches for that letter.
///
/// It is not editable: what is typed never becomes the value. The value changes only when an entry
/// is chosen. Escape closes the list and changes nothing.
class SearchableCombo : public QComboBox {
    Q_OBJECT
public:
    explicit SearchableCombo(QWidget* parent = nullptr);

    void showPopup() override;
    void hidePopup() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Open(const QString& typed);
    void Place();
    void Search(const QString& text);
    void Choose();
    bool KeyInSearch(QKeyEvent& event);
    bool KeyInList(QKeyEvent& event);

    QFrame* m_popup;
    QLineEdit* m_search;
    QListView* m_list;
    QLabel* m_nothing;
    QSortFilterProxyModel* m_found;
};
