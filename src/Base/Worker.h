#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace fendrel {

/// One background thread that runs jobs in order, for what may block: files, databases.
/// `post` and `flush` are called from the thread that owns the worker.
class Worker {
public:
    explicit Worker(const QString& name);
    ~Worker(); ///< runs what is queued, then ends the thread

    /// Queues a job. A queued job of the same key that has not started is replaced: only the newest content of a file
    /// is worth writing. The new one runs in its place. An empty key replaces nothing.
    void post(const QString& key, std::function<void()> job);

    /// Blocks until every job posted so far has run.
    void flush();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace fendrel
