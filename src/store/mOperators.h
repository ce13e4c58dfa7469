#pragma once

#include "Rows.h"

/// The two operators, "KEEPER" (the master) and "CREW" (the user), and their passwords, kept in
/// tblOperators. Everything here throws RunTimeError.

/// Whether the next login window preselects this operator.
enum class RememberLogin { Yes, No };

/// Returns the type if the password is the operator's, else NoOperator. Upper and lower case are
/// the same, and blanks around the entry do not count. If asked, saves the type in the setting
/// LastLogin before it looks at the password. An operator without a row gets one, with the login
/// name as password; this try fails, the next one can succeed. A wrong password is logged without
/// what was entered.
OperatorType CheckOperator(OperatorType type, const QString& entered,
                           RememberLogin remember = RememberLogin::Yes);

/// The same question about a store that is only read, such as a copy. An operator without a row has
/// the login name as password.
bool MayLogIn(OperatorType type, const QString& entered, Connection& store);

/// An operator's row, open for a change of password.
class OperatorRecord {
public:
    explicit OperatorRecord(OperatorType type);

    /// False, and nothing is written, if the operator has no row.
    bool SetPassword(const QString& password);

private:
    Rows m_row;
};
