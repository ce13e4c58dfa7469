#pragma once

#include "EditorDialog.h"

#include <QStringList>

#include <memory>

namespace Ui {
class frmEditReader;
}

/// Renames one reader.
class frmEditReader : public EditorDialog {
    Q_OBJECT
public:
    explicit frmEditReader(QWidget* parent);
    ~frmEditReader() override;

    void SetCaption(const QString& caption) { setWindowTitle(caption); }
    QString Desc; ///< before: the present description; after OK: the new one, trimmed
    QString ReaderId;
    QStringList ExistingNames; ///< descriptions that may not be used; may include its own

    int exec() override;

private:
    QStringList Entered() const override;
    void cmdOK_Click();

    std::unique_ptr<Ui::frmEditReader> m_ui;
};
