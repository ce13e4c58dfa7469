#include "HelpTopics.h"

#include "HelpBook.h"

#include <QHash>
#include <QWidget>

QString HelpTopicOf(const QString& form) {
    static const QHash<QString, QString> topics = {
        {"frmAbout", "troubleshooting"},
        {"frmAddButton", "sites"},
        {"frmAddReader", "readers"},
        {"frmArchive", "database"},
        {"frmCompany", "settings"},
        {"frmCopyTour", "tours"},
        {"frmDebugData", HelpBook::Contents},
        {"frmDownload", "download"},
        {"frmEditButton", "sites"},
        {"frmEditReader", "readers"},
        {"frmEditTime", "tours"},
        {"frmEditTour", "tours"},
        {"frmFirmwareVersion", "readers"},
        {"frmGoOnline", "docking-station"},
        {"frmHelp", HelpBook::Contents},
        {"frmLanguage", "settings"},
        {"frmListEdit", "sites"},
        {"frmLogin", "login"},
        {"frmMDISetup", "first-steps"},
        {"frmManualID", "sites"},
        {"frmMdiDownload", "download"},
        {"frmMdiMenu", "home"},
        {"frmMdiReports", "reports"},
        {"frmPreview", "preview"},
        {"frmPrpComms", "docking-station"},
        {"frmRptCustomParam", "reports"},
        {"frmRptHardwareListParam", "reports"},
        {"frmRptIncidentNew", "reports"},
        {"frmRptIncidentParam", "reports"},
        {"frmRptPatrolSchedule", "reports"},
        {"frmRptReaderReport", "reports"},
        {"frmRptTour", "tour-report"},
        {"frmSetTime", "readers"},
        {"frmSplash", HelpBook::Contents},
        {"frmUserMaintenance", "settings"},
        {"frmWaitReport", "reports"},
    };
    return topics.value(form);
}

QString HelpTopicAround(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (QString topic = HelpTopicOf(widget->objectName()); !topic.isEmpty())
            return topic;
        if (widget->objectName() == u"frmMain")
            for (const QWidget* page : widget->findChildren<QWidget*>())
                if (QString topic = HelpTopicOf(page->objectName());
                    page->isVisible() && !page->isWindow() && !topic.isEmpty())
                    return topic;
    }
    return HelpBook::Contents;
}
