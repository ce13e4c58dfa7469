#include "CapturedId.h"

#include "WindowTools.h"
#include "mTranslations.h"

#include <QLabel>
#include <QPushButton>

void CapturedIdControls::ShowNone() const {
    QSizePolicy policy = lblMsg.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    lblMsg.setSizePolicy(policy);
    lblMsg.hide();
    cmdOK.setEnabled(false);
}

void CapturedIdControls::ShowVerdict(bool good) const {
    ShowIcon(img1, good ? QStringLiteral("good") : QStringLiteral("bad"));
    img1.setAccessibleName(good ? Translate("Not in use yet") : lblMsg.text());
    lblMsg.setVisible(!good);
    cmdOK.setEnabled(good);
}

void CapturedIdControls::ClearPicture() const {
    img1.clear();
    img1.setAccessibleName({});
    img1.repaint();
}
