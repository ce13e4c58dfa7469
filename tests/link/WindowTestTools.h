#pragma once

#include "Clock.h"

#include <QEvent>
#include <QLabel>

#include <functional>
#include <optional>

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
