#pragma once
// Acting on the modal screens that an operation opens inside its own run, in
// the order they come up, each once.
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <vector>

#include "screens/platform/Form.h"

class ModalScript {
public:
    ModalScript() {
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            if (!steps_.empty() && steps_.front().ready()) {
                Step step = std::move(steps_.front());
                steps_.pop_front();
                step.act();
                waiting_.restart();
                return;
            }
            for (const auto& refuse : refusals_)
                if (refuse()) ++strays_;
            // A modal screen that no step awaits would hold the test until
            // its time ran out; after a while it is closed and counted.
            auto* stray = qobject_cast<Form*>(QApplication::activeModalWidget());
            if (stray && waiting_.hasExpired(StrayAfterMs)) {
                stray->Unload();
                ++strays_;
                waiting_.restart();
            }
        });
        waiting_.start();
        timer_.start(2);
    }
    // Acts on the next modal showing of T. Should a check inside act fail,
    // the screen is closed so that the test fails rather than waits.
    template <class T>
    ModalScript& On(std::function<void(T&)> act) {
        steps_.push_back({[] { return Shown<T>(); },
                          [act] {
                              act(Get<T>());
                              if (QTest::currentTestFailed() && Shown<T>()) Get<T>().Unload();
                          }});
        return *this;
    }
    // A modal showing of T that no step awaits is closed and counted: the
    // script is then not done.
    template <class T>
    ModalScript& Refuse() {
        refusals_.push_back([] {
            if (!Shown<T>()) return false;
            Get<T>().Unload();
            return true;
        });
        return *this;
    }
    bool Done() const { return steps_.empty() && strays_ == 0; }
    // For helpers that cannot QVERIFY: fails the running test unless done.
    void Require() const {
        if (!Done()) QTest::qFail("a modal screen went otherwise than scripted", __FILE__, __LINE__);
    }

private:
    template <class T>
    static bool Shown() {
        return IsLoaded<T>() && Get<T>().ShownModal();
    }
    struct Step {
        std::function<bool()> ready;
        std::function<void()> act;
    };
    std::deque<Step> steps_;
    std::vector<std::function<bool()>> refusals_;
    static constexpr int StrayAfterMs = 5000;
    int strays_ = 0;
    QElapsedTimer waiting_;
    QTimer timer_;
};

// Lets screens that were unloaded go.
inline void Settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
