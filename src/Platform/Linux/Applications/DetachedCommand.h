#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QStringList>

#include <functional>
#include <memory>

namespace fendrel {

/// Makes `process` ready to be started detached: without our standard streams, in an environment that is not ours.
void prepareDetached(QProcess& process, const QStringList& command);

/// A command that lives on without us, and whose end we hear of as long as we are there. Main thread.
class DetachedCommand : public QObject {
    Q_OBJECT
public:
    explicit DetachedCommand(QObject* parent);
    ~DetachedCommand() override;

    /// Returns false when the command cannot be started; then `onEnded` is never called.
    bool start(const QStringList& command);

    std::function<void(bool isSuccess)> onEnded = [](bool) {};

private:
    struct Pipe;
    void read();

    std::unique_ptr<Pipe> m_pipe;
    QByteArray m_status;
};

} // namespace fendrel
