#pragma once

#include "EditorDialog.h"

#include <QStringList>

#include <memory>

class DockingLink;
namespace Ui {
class frmAddReader;
}

/// Adds a reader: reads the identifier of the docked reader and asks for its description.
class frmAddReader : public EditorDialog {
    Q_OBJECT
public:
    frmAddReader(DockingLink& link, QWidget* parent);
    ~frmAddReader() override;

    QString ReaderId;
    QString Desc;              ///< the preset description, then the one entered, as typed
    QStringList ExistingNames; ///< descriptions that may not be used

    int exec() override;

private:
    QStringList Entered() const override;
    void cmdRead_Click();
    void CheckReaderID(bool& ok);
    void ShowReader(const QString& readerId);
    void cmdOK_Click();

    std::unique_ptr<Ui::frmAddReader> m_ui;
    DockingLink& m_link;
};
