#pragma once

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <vector>

/// Plays the operator: a list of steps that are run in order while modal windows run their own
/// event loops. Windows are found by their object names. A step that gives false is tried again
/// later.
class Script : public QObject {
public:
    using Step = std::function<bool()>;

    /// Presses these buttons of the message boxes that come.
    explicit Script(const QStringList& answers = {}) {
        for (const QString& answer : answers)
            Answer(answer);
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, this, &Script::Poll);
    }

    void Then(Step step) { m_steps.push_back(std::move(step)); }

    /// Waits for a message box, keeps its text and presses one of its buttons.
    void Answer(const QString& button) {
        Then([this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return false;
            m_texts += box->text();
            for (QAbstractButton* candidate : box->buttons())
                if (candidate->text() == button)
                    candidate->click();
            return true;
        });
    }

    /// Clicks a button of the window with that name, once it is visible and enabled.
    void Click(const QString& window, const QString& button) {
        Then([=] {
            auto* found = Find<QAbstractButton>(window, button);
            if (!found || !found->isEnabled())
                return false;
            // Clicked later: it may run a dialog, and the script must go on during that.
            QTimer::singleShot(0, found, &QAbstractButton::click);
            return true;
        });
    }

    /// Waits until a control of the window with that name can be found, and acts on it.
    template <typename T, typename Action>
    void With(const QString& window, const QString& control, Action action) {
        Then([=] {
            T* found = Find<T>(window, control);
            if (found)
                action(*found);
            return found != nullptr;
        });
    }

    template <typename T>
    static T* Find(const QString& window, const QString& control) {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (!top->isVisible())
                continue;
            QWidget* frame = top->objectName() == window ? top : top->findChild<QWidget*>(window);
            if (frame && frame->isVisible())
                return frame->findChild<T*>(control);
        }
        return nullptr;
    }

    void Start() {
        m_elapsed.start();
        m_timer.start();
    }
    /// Handles events until every step is done; false after half a minute.
    bool Finish() {
        if (QTest::qWaitFor([this] { return m_next >= m_steps.size(); }, 30'000))
            return true;
        const QWidget* focus = QApplication::focusWidget();
        qWarning("the script waits at step %zu; the focus is on %s", m_next,
                 focus ? qPrintable(focus->objectName()) : "nothing");
        return false;
    }
    const QStringList& Texts() const { return m_texts; }

private:
    void Poll() {
        if (m_polling || m_next >= m_steps.size())
            return;
        m_polling = true;
        if (m_steps[m_next]())
            ++m_next;
        m_polling = false;
        if (m_elapsed.elapsed() > 30'000 && m_next < m_steps.size()) {
            // Stuck: close every window, so that the test fails and does not hang.
            qWarning("the script is stuck at step %zu", m_next);
            m_timer.stop();
            QTimer::singleShot(0, [] {
                while (QWidget* modal = QApplication::activeModalWidget())
                    if (auto* dialog = qobject_cast<QDialog*>(modal))
                        dialog->done(QDialog::Rejected); // close() would make an editor ask
                    else
                        modal->close();
                QApplication::quit();
            });
        }
    }

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    bool m_polling = false;
    QStringList m_texts;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
};
