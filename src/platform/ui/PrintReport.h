#pragma once

#include "DataReport.h"

class QPrinter;

/// Prints the pages that the printer's settings ask for, in their order and number of copies.
/// `currentPage`, from 0, is the page on the screen. On sheets smaller than the report's paper the
/// pages are scaled down. The printer, or the file that it prints to, gets a whole job or nothing.
/// False if `progress` cancelled it. Throws RunTimeError if printing fails.
bool PrintReport(const DataReport& report, QPrinter& printer, int currentPage,
                 const WorkProgress& progress = {});
