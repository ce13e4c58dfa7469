#pragma once

/// Deletes touches for good. Each routine asks first, deletes in one transaction, and says how many
/// touches it deleted.

/// Every touch, and every tour with its points.
void DeleteAllEvents();
/// The touches of today, by the reader's clock.
void DeleteTodaysEvents();
