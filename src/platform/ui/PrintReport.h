#pragma once

#include "DataReport.h"

class QPrinter;

/// Prints the pages that the printer's settings ask for, as often and in the order that they ask;
/// `currentPage`, from 0, is the one on the screen. A sheet smaller than the report's paper takes
/// the page scaled down. The printer, or the file that it prints to, gets a whole job or nothing.
/// False if `progress` ended it; throws RunTimeError where printing fails.
bool PrintReport(const DataReport& report, QPrinter& printer, int currentPage,
                 const PageProgress& progress = {});
