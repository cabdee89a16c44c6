#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/Ui.h"
#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/QtBackend.h"
#include "support/TestFolder.h"

namespace qt_testing {

// Answers the real message boxes as a user would: with the queued answer, or the box's
// own default button, and remembers what each one said.
class BoxAnswerer {
  public:
    BoxAnswerer() {
        timer_.setInterval(10);
        QObject::connect(&timer_, &QTimer::timeout, [this] { Poll(); });
        timer_.start();
    }
    void Queue(int answer) { answers_.push_back(answer); }
    // Called with each box as it comes up, before it is answered.
    void OnEachBox(std::function<void(QMessageBox&)> look) { look_ = std::move(look); }
    const std::vector<std::string>& Seen() const { return seen_; }

  private:
    void Poll() {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* box = qobject_cast<QMessageBox*>(w);
            if (!box || !box->isVisible()) continue;
            seen_.push_back("[" + platform::qt::ToAnsi(box->windowTitle()) + "] " +
                            platform::qt::ToAnsi(box->text()));
            if (look_) look_(*box);
            QAbstractButton* button = box->defaultButton();
            if (!answers_.empty()) {
                const int answer = answers_.front();
                answers_.pop_front();
                const auto wanted = answer == platform::vbYes      ? QMessageBox::Yes
                                    : answer == platform::vbNo     ? QMessageBox::No
                                    : answer == platform::vbCancel ? QMessageBox::Cancel
                                                                   : QMessageBox::Ok;
                if (QAbstractButton* b = box->button(wanted)) button = b;
            }
            if (button) button->click();
        }
    }
    QTimer timer_;
    std::deque<int> answers_;
    std::vector<std::string> seen_;
    std::function<void(QMessageBox&)> look_;
};

// A program folder with the desktop backend in place of the headless one.
class QtFixture : public ::testing::Test {
  protected:
    QtFixture() { platform::SetBackend(&backend); }
    ~QtFixture() override {
        backend.DropAllWindows();
        platform::SetBackend(&folder.Ui());
    }

    // Lets queued events run until the condition holds or the time is up.
    static bool WaitFor(const std::function<bool()>& condition, int ms = 2000) {
        QElapsedTimer clock;
        clock.start();
        while (!condition()) {
            if (clock.elapsed() > ms) return false;
            QApplication::processEvents(QEventLoop::AllEvents, 10);
        }
        return true;
    }
    static void Settle() { QApplication::processEvents(); }

    platform::qt::FormWindow& WindowOf(platform::Form& form) {
        platform::qt::FormWindow* w = backend.WindowOf(form);
        if (!w) throw std::runtime_error("no window for " + form.Name());
        return *w;
    }
    template <typename W>
    W* Widget(platform::Control& control) {
        return qobject_cast<W*>(WindowOf(control.Parent()).WidgetOf(control));
    }

    testing_support::TestFolder folder;
    platform::qt::QtBackend backend;
    BoxAnswerer boxes;
};

}  // namespace qt_testing
