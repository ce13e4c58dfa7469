#pragma once

/// Deletes touches for good. Each routine asks first, and then says how many touches there were.

/// Every touch, and every tour with its points, in one transaction.
void DeleteAllEvents();
/// The touches of today. One in the last second of the day stays.
void DeleteTodaysEvents();
