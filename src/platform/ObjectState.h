#pragma once

/// States of a connection or recordset.
enum ObjectState { adStateClosed = 0, adStateOpen = 1 };
