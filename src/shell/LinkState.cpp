#include "LinkState.h"

#include "mDeclareGlobals.h"

void LinkState::Set(bool online, bool detected) {
    m_online = online;
    gDockingDetected = detected;
    emit Changed(detected);
}

void LinkState::Close() {
    m_link.ClosePort();
    Set(false, false);
}
