#include "WindowTools.h"

#include "PaletteIcon.h"
#include "RunTimeError.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QFile>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolBar>

namespace {

/// Translates one property. The English text is kept in a second property.
void TranslateProperty(QObject& object, const char* name, const TranslateText& translate) {
    const QByteArray keyName = QByteArray("english_") + name;
    QVariant key = object.property(keyName.constData());
    if (!key.isValid()) {
        key = object.property(name);
        object.setProperty(keyName.constData(), key);
    }
    const QString english = key.toString();
    if (!english.isEmpty())
        object.setProperty(name, translate(english));
}

/// The active window. If a dialog has just closed and no window is active yet, the visible main
/// window.
QWidget* WindowToBeOver() {
    if (QWidget* active = QApplication::activeWindow())
        return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() == Qt::Window)
            return window;
    return nullptr;
}

QMessageBox::Icon IconOf(MessageKind kind) {
    switch (kind) {
    case MessageKind::Critical:
        return QMessageBox::Critical;
    case MessageKind::Information:
        return QMessageBox::Information;
    case MessageKind::Question:
        return QMessageBox::Question;
    case MessageKind::Warning:
        break;
    }
    return QMessageBox::Warning;
}

QList<MessageAnswer> AnswersOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel:
        return {MessageAnswer::Ok, MessageAnswer::Cancel};
    case MessageButtons::YesNo:
        return {MessageAnswer::Yes, MessageAnswer::No};
    case MessageButtons::RetryIgnore:
        return {MessageAnswer::Retry, MessageAnswer::Ignore};
    case MessageButtons::Ok:
        break;
    }
    return {MessageAnswer::Ok};
}

} // namespace

void TranslateWindow(QWidget& window, const TranslateText& translate) {
    TranslateProperty(window, "windowTitle", translate);
    for (QObject* child : window.findChildren<QObject*>()) {
        // A label that is empty when the window loads shows a value and is never translated. A
        // button on a toolbar takes its text from its action.
        if (qobject_cast<QLabel*>(child) ||
            (qobject_cast<QAbstractButton*>(child) && !qobject_cast<QToolBar*>(child->parent()))) {
            TranslateProperty(*child, "text", translate);
        } else if (const auto* action = qobject_cast<QAction*>(child)) {
            if (!action->menu()) // a menu's own action takes its text from the menu
                TranslateProperty(*child, "text", translate);
        } else if (qobject_cast<QGroupBox*>(child) || qobject_cast<QMenu*>(child)) {
            TranslateProperty(*child, "title", translate);
        }
        if (qobject_cast<QLineEdit*>(child))
            TranslateProperty(*child, "placeholderText", translate);
        if (qobject_cast<QWidget*>(child)) {
            TranslateProperty(*child, "toolTip", translate);
            TranslateProperty(*child, "accessibleName", translate);
        }
        // From right to left, Qt would show 23:59 as 59:23.
        if (auto* time = qobject_cast<QDateTimeEdit*>(child);
            time && (time->displayedSections() & QDateTimeEdit::HourSection)) {
            const QString format = time->displayFormat();
            time->setLayoutDirection(Qt::LeftToRight);
            time->setDisplayFormat(format);
        }
        // On Linux, a screen reader gets the value of a combo box as its name.
        if (auto* combo = qobject_cast<QComboBox*>(child);
            combo && !combo->accessibleName().isEmpty())
            combo->setAccessibleDescription(combo->accessibleName());
    }
}

MessageAnswer WindowMessageBoxes::Show(const Message& message) {
    QMessageBox box(WindowToBeOver());
    if (!box.parentWidget()) // the splash is never active, and must not cover the box
        box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setIcon(IconOf(message.kind));
    box.setWindowTitle(message.caption);
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text + message.aboutButtons);
    if (!message.advice.isEmpty()) {
        box.setInformativeText(message.advice);
        for (auto* label : box.findChildren<QLabel*>()) // names may look like HTML
            label->setTextFormat(Qt::PlainText);
    }
    const QList<MessageAnswer> answers = AnswersOf(message.buttons);
    QList<QAbstractButton*> buttons;
    for (qsizetype i = 0; i < answers.size(); ++i) {
        // Escape presses the last of two buttons.
        const auto role = i == 0 ? QMessageBox::AcceptRole : QMessageBox::RejectRole;
        buttons += box.addButton(message.buttonTexts.value(i), role);
    }
    // A question is about something that cannot be undone: Enter alone must not do it.
    const bool question = message.kind == MessageKind::Question;
    box.setDefaultButton(static_cast<QPushButton*>(question ? buttons.last() : buttons.first()));
    box.setEscapeButton(buttons.last());
    const ArrowPointer arrow;
    box.exec();
    const qsizetype pressed = buttons.indexOf(box.clickedButton());
    return pressed < 0 ? HarmlessAnswer(message.buttons) : answers[pressed];
}

namespace {

class SelectingFilter : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        // Done after the event, because the mouse press that gives the focus also clears the
        // selection. Not after the field's own menu, which had the focus only for a moment.
        if (event->type() == QEvent::FocusIn &&
            static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
            QTimer::singleShot(0, static_cast<QLineEdit*>(watched), &QLineEdit::selectAll);
        return false;
    }
};

class SectionFilter : public QObject {
public:
    explicit SectionFilter(QDateTimeEdit& field) : QObject(&field), m_field(field) {}
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::MouseButtonRelease)
            QTimer::singleShot(0, this,
                               [this] { m_field.setSelectedSection(m_field.currentSection()); });
        // If everything were selected, what is typed would still go into one part only.
        const bool selectAll = event->type() == QEvent::KeyPress &&
                               static_cast<QKeyEvent*>(event)->matches(QKeySequence::SelectAll);
        if (selectAll)
            m_field.setSelectedSection(m_field.sectionAt(0));
        return selectAll;
    }

private:
    QDateTimeEdit& m_field;
};

} // namespace

void SelectSectionOnFocus(QDateTimeEdit& field) {
    auto* filter = new SectionFilter(field);
    field.installEventFilter(filter);
    field.findChild<QLineEdit*>()->installEventFilter(filter);
}

void SelectAllOnFocus(QLineEdit& field) { field.installEventFilter(new SelectingFilter(&field)); }

void EnterGroupsAtChecked(QWidget& window) {
    for (QRadioButton* button : window.findChildren<QRadioButton*>()) {
        const auto enter = [button] {
            for (QRadioButton* other : button->parentWidget()->findChildren<QRadioButton*>(
                     QString(), Qt::FindDirectChildrenOnly))
                other->setFocusPolicy(other == button ? Qt::StrongFocus : Qt::ClickFocus);
        };
        QObject::connect(button, &QRadioButton::toggled, button, [enter](bool checked) {
            if (checked)
                enter();
        });
        if (button->isChecked())
            enter();
    }
}

void FocusAndSelect(QLineEdit& field) {
    field.setFocus();
    field.selectAll();
}

Hourglass::Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }

Hourglass::~Hourglass() { QApplication::restoreOverrideCursor(); }

ArrowPointer::ArrowPointer() : m_shown(QApplication::overrideCursor() != nullptr) {
    if (m_shown)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
}

ArrowPointer::~ArrowPointer() {
    if (m_shown)
        QApplication::restoreOverrideCursor();
}

QIcon ProgramIcon(const QString& name) {
    QString path = QStringLiteral(":/icons/") + name + QStringLiteral(".svg");
    const QString mirrored = QStringLiteral(":/icons/") + name + QStringLiteral("-rtl.svg");
    if (QApplication::isRightToLeft() && QFile::exists(mirrored))
        path = mirrored;
    // These two are pictures with a background of their own.
    const bool isPicture = name == u"wardlock" || name == u"splash";
    return isPicture ? QIcon(path) : PaletteIcon(path);
}

namespace {

/// Draws the icon of a label again when the colours change.
class LabelIcon : public QObject {
public:
    inline static const QString Name = QStringLiteral("labelIcon");

    explicit LabelIcon(QLabel& label) : QObject(&label), m_label(label) {
        setObjectName(Name);
        label.installEventFilter(this);
    }
    void Show(const QString& icon) {
        m_icon = icon;
        Draw();
    }
    bool eventFilter(QObject*, QEvent* event) override {
        const bool isShown = !m_label.pixmap(Qt::ReturnByValue).isNull(); // else it was cleared
        if (event->type() == QEvent::PaletteChange && isShown)
            Draw();
        return false;
    }

private:
    void Draw() {
        m_label.setPixmap(
            ProgramIcon(m_icon).pixmap(m_label.maximumSize(), m_label.devicePixelRatioF()));
    }

    QLabel& m_label;
    QString m_icon;
};

} // namespace

void ShowIcon(QLabel& label, const QString& name) {
    auto* icon = static_cast<LabelIcon*>(
        label.findChild<QObject*>(LabelIcon::Name, Qt::FindDirectChildrenOnly));
    (icon ? icon : new LabelIcon(label))->Show(name);
}

void ShowPicture(QLabel& label, const QString& path) {
    QPixmap picture(path);
    if (picture.isNull())
        throw RunTimeError(
            RunTimeErrorNumber::FileNotFound,
            QStringLiteral("File not found: '%1'").arg(QDir::toNativeSeparators(path)));
    picture.setDevicePixelRatio(2.0);
    label.setPixmap(picture);
}
