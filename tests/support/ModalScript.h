#pragma once
// Acting on the modal screens that an operation opens inside its own run, in
// the order they come up, each once.
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <deque>
#include <functional>

#include "platform/Form.h"

class ModalScript {
public:
    ModalScript() {
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            if (steps_.empty() || !steps_.front().ready()) return;
            Step step = std::move(steps_.front());
            steps_.pop_front();
            step.act();
        });
        timer_.start(2);
    }
    template <class T>
    ModalScript& On(std::function<void(T&)> act) {
        steps_.push_back({[] { return IsLoaded<T>() && Get<T>().ShownModal(); }, [act] { act(Get<T>()); }});
        return *this;
    }
    bool Done() const { return steps_.empty(); }

private:
    struct Step {
        std::function<bool()> ready;
        std::function<void()> act;
    };
    std::deque<Step> steps_;
    QTimer timer_;
};

// Lets screens that were unloaded go.
inline void Settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
