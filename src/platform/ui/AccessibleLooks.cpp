#include "AccessibleLooks.h"

#include <QApplication>
#include <QEvent>
#include <QFocusFrame>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>

#include <cmath>

namespace {

double Luminance(const QColor& colour) {
    const auto part = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
           0.0722 * part(colour.blueF());
}

/// A frame around the widget that has the focus. Styles mark it too, but often too faintly.
class FocusMark : public QFocusFrame {
public:
    using QFocusFrame::QFocusFrame;

protected:
    void paintEvent(QPaintEvent*) override {
        if (!widget())
            return;
        constexpr int Line = 2;
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::WindowText), Line, Qt::SolidLine,
                            Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect().adjusted(Line / 2, Line / 2, -Line / 2, -Line / 2));
    }
};

/// The style of the desktop. From right to left it underlines no mnemonics.
class ReadableStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        // To underline one letter, Qt cuts the word there: Arabic letters no longer join, and the
        // end of the word does not fit. The keys work without the line.
        if (hint == SH_UnderlineShortcut && QGuiApplication::isRightToLeft())
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

} // namespace

double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one), b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor Readable(const QColor& colour, const QColor& background, double contrast) {
    const QColor end =
        Contrast(Qt::black, background) > Contrast(Qt::white, background) ? Qt::black : Qt::white;
    constexpr int Steps = 64;
    for (int step = 0; step < Steps; ++step) {
        const double share = static_cast<double>(step) / Steps;
        const auto mixed = [share](double from, double to) {
            return static_cast<float>(from + (to - from) * share);
        };
        const QColor tried =
            QColor::fromRgbF(mixed(colour.redF(), end.redF()), mixed(colour.greenF(), end.greenF()),
                             mixed(colour.blueF(), end.blueF()));
        if (Contrast(tried, background) >= contrast)
            return tried;
    }
    return end;
}

/// Sees every event of the application.
class AccessibleLooks::Watcher : public QObject {
public:
    Watcher() {
        QApplication::setStyle(new ReadableStyle(QApplication::style()->name()));
        connect(qApp, &QApplication::focusChanged, this, &Watcher::Mark);
        KeepSelectionReadable();
        qApp->installEventFilter(this);
    }
    ~Watcher() override { delete m_mark.data(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
        case QEvent::KeyPress:
            SetKeyboard(true);
            break;
        case QEvent::MouseButtonPress:
            SetKeyboard(false);
            break;
        case QEvent::ApplicationPaletteChange:
            KeepSelectionReadable();
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void SetKeyboard(bool keyboard) {
        if (std::exchange(m_keyboard, keyboard) != keyboard)
            Mark(nullptr, QApplication::focusWidget());
    }

    void Mark(QWidget*, QWidget* widget) {
        if (!m_keyboard || !widget || widget->isWindow()) {
            delete m_mark.data();
            return;
        }
        if (!m_mark)
            m_mark = new FocusMark;
        m_mark->setWidget(widget);
    }

    void KeepSelectionReadable() {
        QPalette palette = QApplication::palette();
        const QColor text = palette.color(QPalette::Active, QPalette::HighlightedText);
        const QColor selection = palette.color(QPalette::Active, QPalette::Highlight);
        // The style lightens a selected row under the mouse.
        constexpr double SelectionContrast = TextContrast * 1.3;
        if (Contrast(text, selection) >= SelectionContrast)
            return;
        // Colours that nobody has set go on following the theme.
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, QPalette::Highlight,
                             Readable(selection, text, SelectionContrast));
        QApplication::setPalette(palette);
    }

    // Its parent is the window in which it was last shown.
    QPointer<FocusMark> m_mark;
    bool m_keyboard = false;
};

AccessibleLooks::AccessibleLooks() : m_watcher(std::make_unique<Watcher>()) {}
AccessibleLooks::~AccessibleLooks() = default;
