#pragma once

/// Whether a connection or recordset is open.
enum ObjectState { adStateClosed = 0, adStateOpen = 1 };
