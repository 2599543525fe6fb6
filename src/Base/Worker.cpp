#include "Base/Worker.h"

#include <pthread.h>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace fendrel {

struct Worker::State {
    struct Job {
        QString key;
        std::function<void()> run;
    };
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Job> queue;
    bool isBusy = false;
    bool isEnding = false;
    std::thread thread;

    void loop() {
        std::unique_lock lock(mutex);
        for (;;) {
            changed.wait(lock, [this] { return isEnding || !queue.empty(); });
            if (queue.empty())
                return;
            auto job = std::move(queue.front());
            queue.pop_front();
            isBusy = true;
            lock.unlock();
            job.run();
            job.run = {}; // what the job captured is released here, not under the lock
            lock.lock();
            isBusy = false;
            changed.notify_all();
        }
    }
};

Worker::Worker(const QString& name) : m_state(std::make_unique<State>()) {
    m_state->thread = std::thread([state = m_state.get(), name = name.toUtf8().left(15)] {
        pthread_setname_np(pthread_self(), name.constData());
        state->loop();
    });
}

Worker::~Worker() {
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->isEnding = true;
    }
    m_state->changed.notify_all();
    m_state->thread.join();
}

void Worker::post(const QString& key, std::function<void()> job) {
    {
        const std::lock_guard lock(m_state->mutex);
        auto& queue = m_state->queue;
        const auto waiting = key.isEmpty() ? queue.end() : std::ranges::find(queue, key, &State::Job::key);
        if (waiting != queue.end())
            waiting->run = std::move(job); // in its place: what was posted after it counts on its being done
        else
            queue.push_back({key, std::move(job)});
    }
    m_state->changed.notify_all();
}

void Worker::flush() {
    std::unique_lock lock(m_state->mutex);
    m_state->changed.wait(lock, [this] { return m_state->queue.empty() && !m_state->isBusy; });
}

} // namespace fendrel
