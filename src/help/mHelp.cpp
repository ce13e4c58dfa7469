#include "mHelp.h"

#include "Application.h"
#include "HelpBook.h"
#include "HelpTopics.h"
#include "RunTimeError.h"
#include "frmHelp.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPointer>

namespace {

QString g_helpFile;
QPointer<frmHelp> g_window;

void ShowHelp(const QString& topic) {
    if (g_helpFile.isEmpty()) {
        IvMessageBox(Translate("Unable to display Help Contents. There is no Help associated with "
                               "this project."),
                     MessageKind::Information);
        return;
    }
    const auto show = [&] {
        if (!g_window) {
            g_window = new frmHelp(g_helpFile);
            g_window->setAttribute(Qt::WA_DeleteOnClose);
        }
        g_window->ShowTopic(topic);
        g_window->show();
        g_window->raise();
        g_window->activateWindow();
    };
    Trapped(show, [](const RunTimeError& error) { IvMessageBox(error.Description()); });
}

class HelpKey : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (!widget || event->type() != QEvent::KeyPress ||
            !static_cast<QKeyEvent*>(event)->matches(QKeySequence::HelpContents))
            return false;
        ShowHelpOn(widget);
        return true;
    }
};

} // namespace

void SetHelpFile(const QString& path) { g_helpFile = path; }

void UpdateLanguage() {
    // The dictionary names each language's help file. Setting the path cannot fail, so there is no
    // fallback here; ShowHelp reports a file that cannot be read.
    const QString localized = ProgramFile(Translate("WK3_ENG.HLP"));
    if (QFileInfo::exists(localized))
        SetHelpFile(localized);
    if (g_window && !IgnoringErrors([] { g_window->Load(g_helpFile); }))
        g_window->close();
}

bool HelpIsForeign() {
    return QLocale(PresentLocale()).language() != QLocale::English &&
           QFileInfo(g_helpFile).fileName() == u"WK3_ENG.HLP";
}

void ShowHelpContents() { ShowHelp(HelpBook::Contents); }

void ShowHelpOn(const QWidget* widget) { ShowHelp(HelpTopicAround(widget)); }

void InstallHelpKey() { qApp->installEventFilter(new HelpKey(qApp)); }
