#include "WindowPlace.h"

#include "Settings.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace {

const QString WindowsSection = QStringLiteral("Windows");
/// So much of a window's upper edge, in pixels, must be on a screen, so that it can be moved.
constexpr int Grip = 80;
/// What the frame of a window may take of the screen, before it is known.
constexpr QSize Frame{16, 48};
constexpr int FocusMargin = 4; ///< for the mark of the focus

std::optional<QRect> SavedPlace(const QString& name) {
    const QStringList parts =
        GetSetting(SettingsApplication, WindowsSection, name).split(u' ', Qt::SkipEmptyParts);
    if (parts.size() != 4)
        return std::nullopt;
    const QRect place(parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), parts[3].toInt());
    return place.width() > 0 && place.height() > 0 ? std::optional(place) : std::nullopt;
}

/// As large and as near as the area allows, frame included.
QRect Within(const QRect& area, const QRect& place) {
    const QSize size = place.size().boundedTo(area.size() - Frame), outer = size + Frame;
    return {QPoint(std::clamp(place.x(), area.left(), area.right() + 1 - outer.width()),
                   std::clamp(place.y(), area.top(), area.bottom() + 1 - outer.height())),
            size};
}

/// Null if too little of the place is on any screen.
QScreen* ScreenOf(const QRect& place, const QWidget& window) {
    const QRect grip(place.topLeft(), QSize(std::max(place.width(), Grip), Frame.height()));
    for (QScreen* screen : window.screen()->virtualSiblings()) {
        const QRect seen = screen->availableGeometry() & grip;
        if (seen.width() >= Grip && seen.height() >= Frame.height() / 2)
            return screen;
    }
    return nullptr;
}

/// Puts everything in a window into an area that scrolls to the control that has the focus.
void MakeScrollable(QWidget& window) {
    QWidget* focus = window.focusWidget();
    auto* area = new QScrollArea(&window);
    area->setObjectName(QStringLiteral("scrollingContent"));
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    auto* content = new QWidget;
    area->setWidget(content); // first, so that the controls never leave the window
    content->setLayout(window.layout());
    auto* around = new QVBoxLayout(&window);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(area);
    around->activate();
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget*, QWidget* now) {
        if (!now || !area->isAncestorOf(now))
            return;
        // The area's own routine only shows the cursor in it.
        const QRect whole(now->mapTo(area->widget(), QPoint()), now->size());
        for (const QPoint corner : {whole.bottomRight(), whole.topLeft()})
            area->ensureVisible(corner.x(), corner.y(), FocusMargin, FocusMargin);
    });
    if (focus)
        focus->setFocus();
}

class WindowPlace : public QObject {
public:
    WindowPlace(QWidget& window, Placed what) : QObject(&window), m_window(window), m_what(what) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        // Not earlier: a base class may have asked for this, before the window has its class.
        if (event->type() == QEvent::Show && !event->spontaneous()) {
            m_name = QString::fromLatin1(m_window.metaObject()->className());
            Restore();
        }
        if (event->type() == QEvent::Hide && !event->spontaneous())
            Save();
        return false;
    }

private:
    void Restore() {
        const std::optional<QRect> saved = m_saved ? m_saved : SavedPlace(m_name);
        m_saved = saved;
        QScreen* screen =
            saved && m_what == Placed::SizeAndPlace ? ScreenOf(*saved, m_window) : nullptr;
        const QRect area = (screen ? screen : m_window.screen())->availableGeometry();
        const QSize most = area.size() - Frame;
        QSize wanted = Roomy((saved ? saved->size() : m_window.size()).boundedTo(most));
        if (m_window.layout() && wanted != wanted.boundedTo(most)) {
            MakeScrollable(m_window);
            wanted.rwidth() += m_window.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        }
        m_window.resize(wanted.boundedTo(most));
        if (screen)
            m_window.move(Within(area, {saved->topLeft(), m_window.size()}).topLeft());
    }

    /// The size, or as much more as the texts need: they are longer in another language.
    QSize Roomy(const QSize& size) const {
        const QSize room = size.expandedTo(m_window.minimumSizeHint());
        return m_window.hasHeightForWidth()
                   ? room.expandedTo({0, m_window.heightForWidth(room.width())})
                   : room;
    }

    void Save() {
        const bool whole = m_window.isMaximized() || m_window.isFullScreen();
        const QRect place =
            whole ? m_window.normalGeometry() : QRect(m_window.pos(), m_window.size());
        if (!place.isValid() || m_saved == place)
            return;
        m_saved = place;
        SaveSetting(SettingsApplication, WindowsSection, m_name,
                    QStringLiteral("%1 %2 %3 %4")
                        .arg(place.x())
                        .arg(place.y())
                        .arg(place.width())
                        .arg(place.height()));
    }

    QWidget& m_window;
    Placed m_what;
    QString m_name;
    std::optional<QRect> m_saved;
};

} // namespace

void RememberPlace(QWidget& window, Placed what) { new WindowPlace(window, what); }

QRect OnScreen(const QRect& place, const QWidget& window) {
    const QScreen* screen = ScreenOf(place, window);
    const QRect area = (screen ? screen : window.screen())->availableGeometry();
    return Within(area, screen ? place : QRect(area.topLeft(), place.size()));
}
