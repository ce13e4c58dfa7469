#include "Application.h"
#include "HelpBook.h"
#include "HelpTopics.h"
#include "TestHome.h"
#include "frmHelp.h"
#include "mHelp.h"
#include "mTranslations.h"

#include <QDialog>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>
#include <QXmlStreamReader>

#include <set>

namespace {

const QString English = QStringLiteral(BESIDE "/WK3_ENG.HLP");
const QString German = QStringLiteral(BESIDE "/WK3_DEU.HLP");

/// A text of the screen as an operator reads it: without the mark of its key, and without what
/// follows a label.
QString Plain(QString text) {
    static const QRegularExpression end("[\\s:.…]+$");
    return text.remove(u'&').simplified().remove(end);
}

/// What the screen shows in German for an English text; several where texts differ only in marks.
QMultiMap<QString, QString> ScreenTexts() {
    QFile file(QStringLiteral(LANGUAGES "/de.ts"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no de.ts");
    QMultiMap<QString, QString> texts;
    QString source;
    for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext())
        if (xml.isStartElement() && xml.name() == u"source")
            source = Plain(xml.readElementText());
        else if (xml.isStartElement() && xml.name() == u"translation")
            texts.insert(source, Plain(xml.readElementText()));
    return texts;
}

std::set<QString> Found(const QByteArray& topic, const char* pattern) {
    const QRegularExpression expression(QString::fromUtf8(pattern));
    std::set<QString> found;
    const QString text = QString::fromUtf8(topic);
    for (auto all = expression.globalMatch(text); all.hasNext();)
        found.insert(all.next().captured(1));
    return found;
}

std::set<QString> BoldTexts(const HelpBook& book, const QString& topic) {
    std::set<QString> texts;
    for (const QString& text : Found(book.Content(topic + ".md"), "\\*\\*(.+?)\\*\\*"))
        texts.insert(Plain(text));
    return texts;
}

frmHelp* HelpWindow() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* help = qobject_cast<frmHelp*>(window); help && help->isVisible())
            return help;
    return nullptr;
}

QString ShownTopic() {
    return HelpWindow()->findChild<QTextBrowser*>("txtHelp")->source().fileName().chopped(3);
}

} // namespace

class HelpTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() {
        if (frmHelp* help = HelpWindow())
            help->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void NamesWhatTheScreenShows() {
        const HelpBook english(English), german(German);
        const QMultiMap<QString, QString> screen = ScreenTexts();
        QCOMPARE(german.Topics(), english.Topics());
        QStringList faults;
        for (const QString& topic : english.Topics()) {
            std::set<QString> unmatched = BoldTexts(german, topic);
            for (const QString& text : BoldTexts(english, topic)) {
                const QStringList translations = screen.values(text);
                if (std::erase_if(unmatched,
                                  [&](auto& one) { return translations.contains(one); }) == 0)
                    faults += topic + ": not in both, or not on the screen: " + text;
            }
            for (const QString& text : unmatched)
                faults += topic + ": not what the screen shows in German: " + text;
        }
        QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
    }

    void HasEveryTopicLinkAndPicture() {
        QStringList faults;
        for (const QString& path : {English, German}) {
            const HelpBook book(path);
            for (const QString& topic : book.Topics())
                for (const QString& name : Found(book.Content(topic + ".md"), "\\]\\(([^)]*)\\)"))
                    if (book.Content(name).isEmpty())
                        faults += path + ", " + topic + ": " + name;
            for (const QString& form : QString(FORMS).split(u','))
                if (form != "frmMain" && !book.Topics().contains(HelpTopicOf(form)))
                    faults += path + ": no topic for " + form; // frmMain shows its pages'
        }
        QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
    }

    void RefusesAnotherFile() {
        QCOMPARE(ErrorOf([] { HelpBook(BESIDE "/no.HLP"); }), RunTimeErrorNumber::FileNotFound);
        for (const QString other : {"/login.bmp", "/WK3.MLD"})
            QCOMPARE(ErrorOf([&] { HelpBook(BESIDE + other); }), RunTimeErrorNumber::FileAccess);
    }

    void FindsAndMarksWords() {
        SetHelpFile(English);
        ShowHelpContents();
        QTest::keyClicks(HelpWindow()->findChild<QLineEdit*>("txtSearch"), "TOLERANCE minutes");
        auto* hits = HelpWindow()->findChild<QTreeWidget*>("lstContents");
        QStringList topics;
        for (int i = 0; i < hits->topLevelItemCount(); ++i)
            topics += hits->topLevelItem(i)->text(0);
        QCOMPARE(topics, (QStringList{"First steps", "Tour report", "Tours"}));
        hits->setCurrentItem(hits->topLevelItem(2)->child(0));
        auto* text = HelpWindow()->findChild<QTextBrowser*>("txtHelp");
        QCOMPARE(ShownTopic(), "tours");
        QVERIFY(text->textCursor().block().text().contains("Tolerance (minutes)"));
        QVERIFY(text->extraSelections().size() > 3);
        text->backward();
        QCOMPARE(ShownTopic(), HelpBook::Contents);
        HelpWindow()->ShowTopic("tours");
        QCOMPARE(hits->currentItem()->text(0), "Tours");
    }

    // F1 in a modal window, and a help window that was open before.
    void CanBeUsedBesideModalWindows() {
        SetHelpFile(English);
        static const bool installed = (InstallHelpKey(), true);
        QVERIFY(installed);
        for (const bool before : {false, true}) {
            if (before)
                ShowHelpContents();
            QDialog dialog, below;
            below.setObjectName("frmMDISetup");
            dialog.setObjectName("frmSetTime");
            int ticks = 0;
            QTimer timer;
            connect(&timer, &QTimer::timeout, this, [&] { ++ticks; });
            timer.start(1);
            QString first, second;
            QTimer::singleShot(50, [&] {
                QTest::keyClick(&dialog, Qt::Key_F1);
                first = ShownTopic();
                const int until = ticks + 5;
                QTRY_VERIFY(ticks > until); // a download's timers go on
                auto* list = HelpWindow()->findChild<QTreeWidget*>("lstContents");
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                                  list->visualItemRect(list->topLevelItem(0)).center());
                second = ShownTopic();
                dialog.close();
                QCoreApplication::processEvents();
                below.close();
            });
            below.setModal(true);
            below.show();
            dialog.exec();
            QCOMPARE(first, "readers");
            QCOMPARE(second, HelpBook::Contents);
            QVERIFY(HelpWindow()); // it outlives the dialog
            HelpWindow()->close();
        }
    }
};

QTEST_MAIN(HelpTest)
#include "HelpTest.moc"
