#include "Platform/Linux/Applications/DetachedCommand.h"

#include "Base/FileDescriptor.h"
#include "Platform/Linux/Applications/ForeignEnvironment.h"

#include <QSocketNotifier>

#include <fcntl.h>

#include <array>

namespace fendrel {

using namespace Qt::StringLiterals;

/// The pipe's reading end, with what waits for it.
struct DetachedCommand::Pipe {
    explicit Pipe(int descriptor) : end(descriptor), notifier(descriptor, QSocketNotifier::Read) {}
    FileDescriptor end;
    QSocketNotifier notifier;
};

DetachedCommand::DetachedCommand(QObject* parent) : QObject(parent) {}
DetachedCommand::~DetachedCommand() = default;

void prepareDetached(QProcess& process, const QStringList& command) {
    process.setProgram(command.first());
    process.setArguments(command.sliced(1));
    process.setProcessEnvironment(foreignEnvironment());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
}

bool DetachedCommand::start(const QStringList& command) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    m_pipe = std::make_unique<Pipe>(ends[0]);
    const FileDescriptor ourWritingEnd(ends[1]);
    // A process that is not our child tells nobody how it ended. A shell beside it does, over the pipe.
    QProcess process;
    prepareDetached(process, QStringList{u"/bin/sh"_s, u"-c"_s, u"\"$@\" >/dev/null; echo $?"_s, u"sh"_s} + command);
    process.setStandardOutputFile(u"/proc/self/fd/%1"_s.arg(ends[1]));
    if (!process.startDetached())
        return false;
    connect(&m_pipe->notifier, &QSocketNotifier::activated, this, &DetachedCommand::read);
    return true;
}

void DetachedCommand::read() {
    std::array<char, 16> buffer{};
    const auto count = ::read(m_pipe->end.get(), buffer.data(), buffer.size());
    if (count > 0) {
        m_status.append(buffer.data(), count);
        return;
    }
    m_pipe->notifier.setEnabled(false);
    onEnded(m_status == "0\n");
}

} // namespace fendrel
