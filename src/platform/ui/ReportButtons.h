#pragma once

#include <functional>

class QDialog;
class QPushButton;

/// Makes the two buttons of a report dialog work. `preview` runs `makeReport`, which makes and
/// shows the report: under the hourglass, and with both buttons disabled until it returns. The
/// dialog then stays open, so that another report can be made. `cancel` closes it as rejected. The
/// dialog remembers its size and place.
/// To make the report in another way, such as a double click, call `preview.click()`.
///
/// `makeReport` must let no failure out.
void JoinReportButtons(QDialog& dialog, QPushButton& preview, QPushButton& cancel,
                       std::function<void()> makeReport);
