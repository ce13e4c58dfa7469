#include "mOperators.h"

#include "Settings.h"
#include "mErrorHandler.h"

namespace {

QString LoginNameOf(OperatorType type) {
    return type == MasterOperator ? QStringLiteral("KEEPER") : QStringLiteral("CREW");
}

bool IsPassword(const QString& password, const QString& entered) {
    return password.toUpper() == entered.trimmed().toUpper();
}

} // namespace

OperatorRecord::OperatorRecord(OperatorType type)
    : m_row(QStringLiteral("SELECT * FROM tblOperators WHERE LoginName = ?;"),
            {LoginNameOf(type)}) {}

bool OperatorRecord::SetPassword(const QString& password) {
    if (!m_row.Any())
        return false;
    m_row.Set(u"Password", password);
    m_row.Update();
    return true;
}

OperatorType CheckOperator(OperatorType type, const QString& entered, RememberLogin remember) {
    const QString name = LoginNameOf(type);
    Rows operators(QStringLiteral("SELECT * From tblOperators WHERE LoginName = ?;"), {name});
    if (!operators.Any()) {
        operators.AddNew();
        operators.Set(u"LoginName", name);
        operators.Set(u"Password", name);
        operators.Update();
        return NoOperator;
    }
    if (remember == RememberLogin::Yes)
        SaveSetting(SettingsApplication, SettingsSection::Info, QStringLiteral("LastLogin"),
                    QString::number(type));
    const bool equal = IsPassword(operators.Text(u"Password"), entered);
    if (!equal)
        WriteLog(QStringLiteral("Wrong password for user type = %1").arg(type));
    return equal ? type : NoOperator;
}

bool MayLogIn(OperatorType type, const QString& entered, Connection& store) {
    const QString name = LoginNameOf(type);
    Recordset operators;
    operators.Open(QStringLiteral("SELECT * From tblOperators WHERE LoginName = ?;"), {name},
                   store);
    return IsPassword(operators.Eof() ? name : operators.Text(u"Password"), entered);
}
