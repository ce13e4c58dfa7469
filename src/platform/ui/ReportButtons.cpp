#include "ReportButtons.h"

#include "WindowPlace.h"
#include "WindowTools.h"

#include <QDialog>
#include <QPushButton>

void JoinReportButtons(QDialog& dialog, QPushButton& preview, QPushButton& cancel,
                       std::function<void()> makeReport) {
    RememberPlace(dialog);
    QObject::connect(&cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    QObject::connect(&preview, &QPushButton::clicked, &dialog,
                     [&dialog, &preview, &cancel, makeReport = std::move(makeReport)] {
                         QWidget* focus = dialog.focusWidget(); // lost if it is one of the two
                         preview.setEnabled(false);
                         cancel.setEnabled(false);
                         dialog.repaint();
                         {
                             const Hourglass hourglass;
                             makeReport();
                         }
                         preview.setEnabled(true);
                         cancel.setEnabled(true);
                         if (focus)
                             focus->setFocus();
                     });
}
