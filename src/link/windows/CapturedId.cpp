#include "CapturedId.h"

#include "NameFault.h"
#include "WindowTools.h"
#include "mTranslations.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

void CapturedIdControls::ShowNone() const {
    QSizePolicy policy = lblMsg.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    lblMsg.setSizePolicy(policy);
    lblMsg.hide();
    cmdOK.setEnabled(false);
}

void CapturedIdControls::ShowVerdict(bool good) const {
    const QIcon picture = ProgramIcon(good ? QStringLiteral("good") : QStringLiteral("bad"));
    img1.setPixmap(picture.pixmap(img1.maximumSize(), img1.devicePixelRatioF()));
    img1.setAccessibleName(good ? Translate("Not in use yet") : lblMsg.text());
    lblMsg.setVisible(!good);
    cmdOK.setEnabled(good);
}

void CapturedIdControls::ClearPicture() const {
    img1.clear();
    img1.repaint();
}

bool AcceptName(Named what, QLineEdit& field, const QStringList& existingNames,
                const QString& received) {
    const QString fault = NameFault(what, field.text().trimmed(), existingNames, received);
    if (fault.isEmpty())
        return true;
    IvMessageBox(fault);
    field.setFocus();
    field.selectAll();
    return false;
}
