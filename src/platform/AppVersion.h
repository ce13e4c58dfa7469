#pragma once

/// The program's version numbers.
int AppMajor();
int AppMinor();
int AppRevision();
/// All three with points between them, such as "1.1.0".
const char* AppVersionText();
