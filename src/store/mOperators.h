#pragma once

#include "mDeclareGlobals.h"

#include <QString>

/// The two operators and their passwords, kept in tblOperators.

/// "KEEPER" for the master, "CREW" for the user.
QString LoginNameOf(OperatorType type);

/// Whether the next login window is to preselect this operator.
enum class RememberLogin { Yes, No };

/// The type, if the password is the operator's, else NoOperator. Passwords are compared without
/// regard to case, and blanks around what was entered do not count. Remembers the type in the
/// setting LastLogin, if asked, before the password is even looked at. An operator who has no row
/// yet gets one, with his login name for a password; that try has failed, the next may succeed.
/// A wrong password is logged, but not what was entered.
/// Throws RunTimeError.
OperatorType CheckOperator(OperatorType type, const QString& entered,
                           RememberLogin remember = RememberLogin::Yes);
