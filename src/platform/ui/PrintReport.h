#pragma once

class DataReport;
class QPrinter;

/// Prints the pages that the printer's settings ask for, as often and in the order that they ask;
/// `currentPage`, from 0, is the one on the screen. A sheet smaller than the report's paper takes
/// the page scaled down. Throws RunTimeError where printing fails.
void PrintReport(const DataReport& report, QPrinter& printer, int currentPage);
