#include "AccessibleLooks.h"
#include "AllWindows.h"
#include "Clock.h"
#include "Connection.h"
#include "DataReport.h"
#include "DockingLink.h"
#include "DueTours.h"
#include "ReportViewer.h"
#include "SqlDate.h"
#include "TestHome.h"
#include "WindowTools.h"
#include "cReaderOptions.h"
#include "mTranslations.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>

namespace {

class NoViewer : public ReportViewer {
    void Show(DataReport&) override {}
};

QPalette PaletteOf(const QColor& window, const QColor& base, const QColor& text,
                   const QColor& highlight, const QColor& highlightedText) {
    QPalette palette(text, window.lighter(115), window.lighter(150), window.darker(150),
                     window.darker(120), text, base);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, highlightedText);
    palette.setColor(QPalette::Link, highlight.lighter(130));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, Qt::gray);
    return palette;
}

const QMap<QString, QPalette>& Palettes() {
    static const QMap<QString, QPalette> palettes{
        {"light", QStyleFactory::create("Fusion")->standardPalette()},
        {"dark", PaletteOf("#2d2d2d", "#1e1e1e", "#f0f0f0", "#2a82da", Qt::black)},
        {"contrast", PaletteOf(Qt::black, Qt::black, Qt::white, Qt::yellow, Qt::black)}};
    return palettes;
}

/// The contrast of what is drawn in a part of a picture: of the commonest colour, which is the
/// background, and the colour that differs most from it. Empty if it has one colour only.
std::optional<double> ContrastIn(const QImage& picture, const QRect& part) {
    QHash<QRgb, int> counts;
    const QRect area = part & picture.rect();
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            ++counts[picture.pixel(x, y)];
    if (counts.size() < 2)
        return {};
    QRgb background = 0;
    int most = 0;
    for (auto count = counts.begin(); count != counts.end(); ++count)
        if (count.value() > most)
            background = count.key(), most = count.value();
    double best = 1;
    for (auto count = counts.begin(); count != counts.end(); ++count)
        best = std::max(best, Contrast(QColor(background), QColor(count.key())));
    return best;
}

/// The parts of a widget that show text, without frames and the boxes of checks.
QList<QRect> TextsOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text().isEmpty() ? QList<QRect>() : QList<QRect>{label->contentsRect()};
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
        QList<QRect> cells;
        if (const auto* model = view->model(); model && !widget.inherits("QHeaderView"))
            for (int row = 0; row < std::min(model->rowCount(), 20); ++row)
                for (int column = 0; column < model->columnCount(); ++column) {
                    const QModelIndex cell = model->index(row, column);
                    if (!cell.data().toString().isEmpty())
                        cells += view->visualRect(cell)
                                     .translated(view->viewport()->pos())
                                     .adjusted(2, 2, -2, -2) &
                                 view->viewport()->geometry();
                }
        return cells;
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        QList<QRect> titles;
        for (int i = 0; i < tabs->count(); ++i)
            titles += tabs->tabRect(i).adjusted(8, 6, -8, -6);
        return titles;
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        if (button->text().isEmpty())
            return {};
        if (widget.inherits("QCheckBox") || widget.inherits("QRadioButton")) {
            QStyleOptionButton option;
            option.initFrom(&widget);
            option.text = button->text();
            return {widget.style()->subElementRect(widget.inherits("QCheckBox")
                                                       ? QStyle::SE_CheckBoxContents
                                                       : QStyle::SE_RadioButtonContents,
                                                   &option, &widget)};
        }
        return {widget.rect().adjusted(8, 5, -8, -5)};
    }
    return {};
}

QRect InPicture(const QRect& part, const QWidget& widget, const QWidget& window) {
    const QPoint place = widget.mapTo(&window, part.topLeft());
    const double ratio = window.devicePixelRatioF();
    return QRectF(QPointF(place) * ratio, QSizeF(part.size()) * ratio).toRect();
}

QString Called(const QWidget& widget) {
    return QString::fromLatin1(widget.metaObject()->className()) + u' ' + widget.objectName();
}

QStringList FaintTexts(QWidget& window) {
    QStringList faults;
    const QImage picture = window.grab().toImage();
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled())
            continue;
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool isSign = label && !label->pixmap(Qt::ReturnByValue).isNull();
        for (const QRect& part : isSign ? QList<QRect>{label->rect()} : TextsOf(*widget))
            if (const auto contrast = ContrastIn(picture, InPicture(part, *widget, window));
                contrast && *contrast < (isSign ? SignContrast : TextContrast))
                faults += QStringLiteral("contrast %1: %2")
                              .arg(*contrast, 0, 'f', 2)
                              .arg(Called(*widget));
    }
    return faults;
}

/// How much of a picture is pure white, in hundredths.
double WhiteIn(const QImage& picture) {
    qint64 white = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            white += picture.pixel(x, y) == qRgb(255, 255, 255);
    return 100.0 * static_cast<double>(white) / (picture.width() * picture.height());
}

/// The colours of the texts in a layout of a report that can hardly be read on paper.
QStringList FaintInk(const QJsonValue& value) {
    QStringList faults;
    if (value.isArray())
        for (const QJsonValue& element : value.toArray())
            faults += FaintInk(element);
    const QJsonObject object = value.toObject();
    for (const QJsonValue& element : object)
        faults += FaintInk(element);
    const QString ink = object.value(u"colour").toString();
    if (!ink.isEmpty() && object.value(u"type").toString() != u"line" &&
        Contrast(QColor(ink), Qt::white) < TextContrast)
        faults += ink;
    return faults;
}

/// One guard's walk over the demonstration site last night: in time, too early, too late, and one
/// point left out.
void WalkLastNight() {
    for (const DueTour& due : DueTours(Now() - DateTime::FromDays(1), Now()))
        if (due.tour.name == u"Night round")
            for (const auto& [minutes, code] :
                 {std::pair(0, "1A40C2"), std::pair(10, "1A40C7"), std::pair(52, "1A41D0")})
                gConn->Execute(QStringLiteral("INSERT INTO tblEvents (tPipeID, dtDateTime, "
                                              "tButtonCode, wGroupType) VALUES ('4B5831A7', #%1#, "
                                              "'%2', 1)")
                                   .arg(SqlDateTimeFmt(due.start + DateTime::FromTime(0, minutes)),
                                        QString::fromLatin1(code)));
}

/// Widgets that look the same whether they have the focus or not, or nearly so.
QStringList UnseenFocus(QWidget& window) {
    QStringList faults;
    QTest::keyClick(&window, Qt::Key_Shift); // the operator uses the keyboard
    QList<QPointer<QWidget>> widgets;        // the mark of the focus goes when the focus goes
    for (QWidget* widget : window.findChildren<QWidget*>())
        widgets += widget;
    for (QWidget* widget : widgets) {
        if (!widget || !widget->isVisible() || !widget->isEnabled() || widget->focusProxy() ||
            !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        if (QWidget* other = QApplication::focusWidget())
            other->clearFocus();
        const QImage before = window.grab().toImage();
        widget->setFocus(Qt::TabFocusReason);
        if (!widget->hasFocus())
            continue;
        const QImage after = window.grab().toImage();
        double most = 1;
        for (int y = 0; y < before.height(); ++y)
            for (int x = 0; x < before.width(); ++x)
                if (before.pixel(x, y) != after.pixel(x, y))
                    most =
                        std::max(most, Contrast(before.pixelColor(x, y), after.pixelColor(x, y)));
        if (most < SignContrast)
            faults +=
                QStringLiteral("focus contrast %1: %2").arg(most, 0, 'f', 2).arg(Called(*widget));
    }
    return faults;
}

} // namespace

/// What can be seen of every window, measured from its pixels.
class SeenTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;
    std::optional<AccessibleLooks> m_looks;

private slots:
    void initTestCase() {
        m_home = std::make_unique<TestHome>(TestHome::DemoSite);
        m_home->CopyProgramFiles(QStringLiteral(BESIDE));
        gLanguage = 0;
        OpenDictionary();
        QApplication::setStyle("Fusion");
        m_looks.emplace();
        WalkLastNight();
    }
    void cleanupTestCase() {
        gReaderOptions.reset();
        gDictionary.reset();
        m_home.reset();
    }

    void IsSeen_data() {
        QTest::addColumn<QString>("palette");
        QTest::addColumn<QString>("form");
        for (const QString& palette : Palettes().keys())
            for (const auto& [form, maker] : AllWindows())
                QTest::addRow("%s, %s", qPrintable(form), qPrintable(palette)) << palette << form;
    }
    void IsSeen() {
        QFETCH(const QString, palette);
        QFETCH(const QString, form);
        QApplication::setPalette(Palettes()[palette]);
        QCOMPARE(QApplication::palette().window(), Palettes()[palette].window());
        DockingLink link;
        NoViewer viewer;
        const std::unique_ptr<QWidget> window = AllWindows().at(form)(link, viewer);
        window->show();
        QApplication::setActiveWindow(window.get());
        QCoreApplication::processEvents();
        const QStringList faults = FaintTexts(*window) + UnseenFocus(*window);
        QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
        if (form != u"frmMdiMenu" || palette != u"dark")
            return;
        window->resize(1000, 800); // with its picture
        QCoreApplication::processEvents();
        QVERIFY(window->findChild<QLabel*>("imgContact")->isVisible());
        QVERIFY(WhiteIn(window->grab().toImage()) < 1);
    }

    // Otherwise the colours of some would not be measured.
    void HomeShowsEachStatus() {
        DockingLink link;
        NoViewer viewer;
        const std::unique_ptr<QWidget> home = AllWindows().at("frmMdiMenu")(link, viewer);
        const auto* list = home->findChild<QTreeWidget*>("lvwTours");
        for (int column = 3; column < 7; ++column) {
            bool shown = false;
            for (int row = 0; row < list->topLevelItemCount(); ++row)
                shown |= !list->topLevelItem(row)->text(column).isEmpty();
            QVERIFY2(shown, qPrintable(list->headerItem()->text(column)));
        }
    }

    void IconsFollowThePalette() {
        QApplication::setPalette(Palettes()["light"]);
        QLabel label;
        label.setMaximumSize(24, 24);
        ShowIcon(label, QStringLiteral("reader"));
        label.show();
        const QImage light = label.pixmap(Qt::ReturnByValue).toImage();
        QApplication::setPalette(Palettes()["dark"]);
        QCoreApplication::processEvents();
        QVERIFY(label.pixmap(Qt::ReturnByValue).toImage() != light);
    }

    void ArabicWordsAreWhole() {
        const auto picture = [](const QString& text) {
            QLabel label(text);
            QLineEdit field;
            label.setBuddy(&field); // so that it has a mnemonic
            return label.grab().toImage();
        };
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(picture(QStringLiteral("الا&سم:")), picture(QStringLiteral("الاسم:")));
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QVERIFY(picture(QStringLiteral("&Name:")) != picture(QStringLiteral("Name:")));
    }

    void InkIsSeen() {
        const QDir layouts(QStringLiteral(":/layouts"));
        QCOMPARE(layouts.entryList().size(), 8);
        for (const QString& name : layouts.entryList()) {
            QFile file(layouts.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QJsonObject layout = QJsonDocument::fromJson(file.readAll()).object();
            QVERIFY(!layout.isEmpty());
            QCOMPARE(FaintInk(layout), QStringList());
        }
    }
};

QTEST_MAIN(SeenTest)
#include "SeenTest.moc"
