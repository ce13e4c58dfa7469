#pragma once

#include <memory>

/// Held by the one running instance on an application folder, be it the station or the command
/// line; released when destroyed, and by the system when the process dies.
class InstanceLock {
public:
    virtual ~InstanceLock() = default;
};
/// Null when another process of this user holds it. (Between users the store's own lock file stands
/// guard.)
std::unique_ptr<InstanceLock> TakeInstanceLock();
