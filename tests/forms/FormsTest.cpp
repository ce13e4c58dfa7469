#include "AllWindows.h"
#include "DataReport.h"
#include "DockingLink.h"
#include "Recordset.h"
#include "ReportViewer.h"
#include "Settings.h"
#include "TestHome.h"
#include "cReaderOptions.h"
#include "frmMain.h"
#include "frmSplash.h"
#include "mTranslations.h"

#include <QAccessible>
#include <QApplication>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include <functional>
#include <map>

namespace {

class NoViewer : public ReportViewer {
    void Show(DataReport&) override {}
};

QString Called(const QWidget& widget, const QString& text = {}) {
    return QStringLiteral("%1 %2 \"%3\"")
        .arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName(), text);
}

/// What a screen reader says of a widget.
QString AccessibleName(QWidget& widget) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget);
    return interface ? interface->text(QAccessible::Name) : QString();
}

/// Widgets that Qt makes inside its own are named by the one around them.
bool IsInner(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    return widget.objectName().startsWith("qt_") || widget.inherits("QHeaderView") ||
           widget.inherits("QScrollBar") || widget.inherits("QComboBoxListView") ||
           parent->inherits("QAbstractSpinBox") || parent->inherits("QComboBox") ||
           parent->inherits("QTabBar");
}

QStringList NamelessWidgets(QWidget& window) {
    QStringList faults;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->focusPolicy() != Qt::NoFocus && !IsInner(*widget) &&
            AccessibleName(*widget).isEmpty())
            faults += "no name: " + Called(*widget);
    return faults;
}

/// The texts whose mnemonics the keyboard reaches at the same time.
QStringList RepeatedMnemonics(const QStringList& texts) {
    QStringList faults;
    QMap<QString, QString> taken;
    for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty() && taken.contains(key))
            faults += QStringLiteral("%1: \"%2\" and \"%3\"").arg(key, taken[key], text);
        taken[key] = text;
    }
    return faults;
}

QStringList TextsOf(const QList<QAction*>& actions) {
    QStringList texts;
    for (const QAction* action : actions)
        if (action->isVisible())
            texts += action->text();
    return texts;
}

QStringList RepeatedMnemonics(QWidget& window) {
    QStringList texts, faults;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (const auto* button = qobject_cast<QAbstractButton*>(widget))
            texts += button->text();
        else if (const auto* label = qobject_cast<QLabel*>(widget); label && label->buddy())
            texts += label->text();
        else if (const auto* group = qobject_cast<QGroupBox*>(widget))
            texts += group->title();
        else if (const auto* tabs = qobject_cast<QTabBar*>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                texts += tabs->tabText(i);
        else if (const auto* bar = qobject_cast<QMenuBar*>(widget))
            texts += TextsOf(bar->actions());
        else if (const auto* menu = qobject_cast<QMenu*>(widget))
            faults += RepeatedMnemonics(TextsOf(menu->actions()));
    }
    return faults + RepeatedMnemonics(texts);
}

bool IsClipped(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->text().isEmpty())
            return false;
        return label->wordWrap() ? label->heightForWidth(label->width()) > label->height()
                                 : label->sizeHint().width() > label->width() ||
                                       label->sizeHint().height() > label->height();
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        return tabs->sizeHint().width() > tabs->parentWidget()->width();
    if (qobject_cast<const QAbstractButton*>(&widget))
        return widget.sizeHint().width() > widget.width() ||
               widget.sizeHint().height() > widget.height();
    if (qobject_cast<const QGroupBox*>(&widget))
        return widget.minimumSizeHint().width() > widget.width();
    return false;
}

QStringList ClippedTexts(QWidget& window, const QString& size) {
    QStringList faults;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && !IsInner(*widget) && IsClipped(*widget))
            faults +=
                "clipped at its " + size + Called(*widget, widget->property("text").toString());
    return faults;
}

QStringList ClippedHeadings(QWidget& window) {
    QStringList faults;
    for (const QHeaderView* header : window.findChildren<QHeaderView*>())
        for (int i = 0; header->isVisible() && i < header->count(); ++i)
            if (!header->isSectionHidden(i) && header->sectionSizeHint(i) > header->sectionSize(i))
                faults +=
                    QStringLiteral("clipped heading %1: ").arg(i) + Called(*header->parentWidget());
    return faults;
}

/// What of a widget the widgets around it let through.
QSize SeenOf(const QWidget& widget) {
    QRect seen = widget.rect();
    for (const QWidget* inner = &widget; !inner->isWindow(); inner = inner->parentWidget())
        seen = seen.translated(inner->pos()) & inner->parentWidget()->rect();
    return seen.size();
}

/// What is too large for the screen, and the controls that the keyboard reaches but nobody sees.
QStringList Unreachable(QWidget& window) {
    QStringList faults;
    constexpr QSize AroundPage{0, 130};
    const QSize room = window.screen()->availableSize() - (IsPage(window) ? AroundPage : QSize());
    const QSize least = IsPage(window) ? window.minimumSizeHint() : window.size();
    if (least != least.boundedTo(room))
        faults += QStringLiteral("larger than the screen: %1 x %2")
                      .arg(least.width())
                      .arg(least.height());
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled() || IsInner(*widget) ||
            !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        widget->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        const QSize seen = SeenOf(*widget), wanted = widget->size().boundedTo(window.size() / 2);
        if (seen != seen.expandedTo(wanted))
            faults += "not seen: " + Called(*widget);
    }
    return faults;
}

/// The narrowest that the operator can make a window, and as high as its texts then need.
QSize SmallestSize(const QWidget& window) {
    if (IsPage(window))
        return {530, 300}; // what the main window leaves for a page
    QSize size = window.minimumSize().expandedTo(window.minimumSizeHint());
    if (window.hasHeightForWidth())
        size.setHeight(window.heightForWidth(size.width()));
    return size;
}

/// Hours stand on the left in every language.
QStringList ReversedTimes(QWidget& window) {
    QStringList faults;
    for (const QDateTimeEdit* field : window.findChildren<QDateTimeEdit*>())
        if ((field->displayedSections() & QDateTimeEdit::HourSection) &&
            field->text() != field->time().toString(QStringLiteral("HH:mm")))
            faults += "time: " + Called(*field, field->text());
    return faults;
}

/// All faults of a window that is shown, at its usual size and at its smallest. The headings of
/// lists may be clipped at the smallest size: their columns can be dragged.
QStringList FaultsOf(QWidget& window) {
    if (IsPage(window))
        window.resize(800, 500);
    QCoreApplication::processEvents();
    QStringList faults = NamelessWidgets(window) + RepeatedMnemonics(window) +
                         ReversedTimes(window) + ClippedTexts(window, "usual size: ") +
                         ClippedHeadings(window) + Unreachable(window);
    window.resize(SmallestSize(window));
    QCoreApplication::processEvents();
    return faults + ClippedTexts(window, "smallest size: ");
}

} // namespace

class FormsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;

private slots:
    void initTestCase() {
        m_home = std::make_unique<TestHome>(TestHome::DemoSite);
        m_home->CopyProgramFiles(QStringLiteral(BESIDE));
    }
    void cleanupTestCase() {
        gReaderOptions.reset();
        gDictionary.reset();
        m_home.reset();
    }

    void NoFormIsForgotten() {
        for (const QString& form : QString(FORMS).split(u','))
            QVERIFY2(AllWindows().contains(form), qPrintable(form));
    }

    // Latin values are kept apart from the Arabic around them, numbers and other languages are not.
    void ValuesInArabic() {
        const auto shown = [](int language) {
            gLanguage = language;
            OpenDictionary();
            return FormatStr("%0:s, %1:s", {"/a/b", "5"}) + InReadingDirection("c");
        };
        QCOMPARE(shown(9), QStringLiteral(u"\u2068/a/b\u2069, 5\u200Fc"));
        QCOMPARE(shown(2), "/a/b, 5c");
    }

    void Shows_data() {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("form");
        gLanguage = 0;
        OpenDictionary();
        for (int language = 0; language < gDictionary->LanguageCount(); ++language) {
            const Language shown = gDictionary->Languages(language);
            if (language > 0 && shown.locale.isEmpty())
                continue; // the same texts as the first one
            for (const auto& [form, maker] : AllWindows())
                QTest::addRow("%s in %s", qPrintable(form), qPrintable(shown.englishName))
                    << language << form;
        }
    }
    void Shows() {
        QFETCH(const int, language);
        QFETCH(const QString, form);
        gLanguage = language;
        OpenDictionary();
        QCOMPARE(gLanguage, language);
        // Its size is not that of the row before.
        SaveSetting(SettingsApplication, QStringLiteral("Windows"), form, {});
        DockingLink link;
        NoViewer viewer;
        const std::unique_ptr<QWidget> window = AllWindows().at(form)(link, viewer);
        window->show();
        QApplication::setActiveWindow(window.get());
        const QStringList faults = FaultsOf(*window);
        QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
    }
};

QTEST_MAIN(FormsTest)
#include "FormsTest.moc"
