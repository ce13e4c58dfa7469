#pragma once

#include <memory>

/// Held by the one instance that works on an application folder, the station or the command line.
/// Released when destroyed, and by the system when the process dies.
class InstanceLock {
public:
    virtual ~InstanceLock() = default;
};
/// Null if another process of this user holds it. (Between users, the store's own lock file keeps
/// the second one out.)
std::unique_ptr<InstanceLock> TakeInstanceLock();
