#include "mOperators.h"

#include "Recordset.h"
#include "Settings.h"
#include "mErrorHandler.h"

QString LoginNameOf(OperatorType type) {
    return type == MasterOperator ? QStringLiteral("KEEPER") : QStringLiteral("CREW");
}

OperatorType CheckOperator(OperatorType type, const QString& entered, RememberLogin remember) {
    const QString name = LoginNameOf(type);
    Recordset operators;
    operators.CursorLocation = adUseClient;
    operators.Open(QStringLiteral("SELECT * From tblOperators WHERE LoginName = ?;"), {name},
                   *gConn);
    if (operators.RecordCount() < 1) {
        operators.AddNew();
        operators.Set(u"LoginName", name);
        operators.Set(u"Password", name);
        operators.Update();
        return NoOperator;
    }
    if (remember == RememberLogin::Yes)
        SaveSetting(SettingsApplication, SettingsSection::Info, QStringLiteral("LastLogin"),
                    QString::number(type));
    operators.MoveFirst();
    const bool equal = operators.Text(u"Password").toUpper() == entered.trimmed().toUpper();
    if (!equal)
        WriteLog(QStringLiteral("Wrong password for user type = %1").arg(type));
    return equal ? type : NoOperator;
}
