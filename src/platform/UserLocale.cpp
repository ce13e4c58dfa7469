#include "UserLocale.h"

#include <optional>

namespace {

/// The machine's locale while QLocale() is another one.
std::optional<QLocale> g_machine;

QLocale Fitting(const QLocale& usual) {
    const QLocale machine = MachineLocale();
    const bool none = machine.language() == QLocale::C;
    if (machine.language() == usual.language() || (none && usual.language() == QLocale::English))
        return machine;
    const QLocale inCountry(usual.language(), machine.territory());
    return !none && inCountry.territory() == machine.territory() ? inCountry : usual;
}

} // namespace

QLocale MachineLocale() { return g_machine.value_or(QLocale()); }

void UseLocaleOf(const QLocale& usual) {
    const QLocale fitting = Fitting(usual);
    if (!g_machine)
        g_machine = QLocale();
    QLocale::setDefault(fitting);
}

void UseMachineLocale() {
    if (g_machine)
        QLocale::setDefault(*g_machine);
    g_machine.reset();
}
