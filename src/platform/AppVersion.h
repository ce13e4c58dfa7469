#pragma once

/// The program's version numbers.
int AppMajor();
int AppMinor();
int AppRevision();
