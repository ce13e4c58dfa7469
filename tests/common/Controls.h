#pragma once

#include "Clock.h"
#include "Script.h"

#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

#include <optional>

/// Finds the controls of a window by name, types into them and reads them.

template <typename T = QLabel>
T* Control(QWidget& window, const char* name) {
    T* control = window.findChild<T*>(QString::fromLatin1(name));
    if (!control)
        qFatal("no control %s", name);
    return control;
}

inline void Press(QWidget& window, const char* button) {
    Control<QAbstractButton>(window, button)->click();
}

/// The step of a script that fills a field of the window with that name, once it is shown.
inline void Type(Script& script, const QString& window, const char* field, const QString& text) {
    script.With<QLineEdit>(window, field, [=](QLineEdit& edit) { edit.setText(text); });
}

/// A list's rows. Each row is a text, its columns separated by "|".
inline QStringList RowsIn(const QAbstractItemView& list) {
    QStringList rows;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < list.model()->columnCount(); ++column)
            texts += list.model()->index(row, column).data().toString();
        rows += texts.join(u'|');
    }
    return rows;
}

/// When a label was first painted in the wanted state.
class PaintSpy : public QObject {
public:
    PaintSpy(QLabel& label, std::function<bool(const QLabel&)> wanted)
        : m_label(label), m_wanted(std::move(wanted)) {
        label.installEventFilter(this);
    }
    std::optional<DateTime> At;

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && !At && m_wanted(m_label))
            At = Now();
        return false;
    }

    QLabel& m_label;
    std::function<bool(const QLabel&)> m_wanted;
};
