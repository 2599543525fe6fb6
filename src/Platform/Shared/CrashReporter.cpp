#include "Platform/Shared/CrashReporter.h"

#include "Base/FileDescriptor.h"
#include "Base/Log.h"
#include "Platform/Shared/SignalSafeText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <dlfcn.h>
#include <execinfo.h>
#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cstddef>
#include <cstring>
#include <ctime>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool hasSanitizer = true;
#else
constexpr bool hasSanitizer = false;
#endif

constexpr int frameLimit = 128;
constexpr unsigned secondsForReport = 10;
constexpr std::size_t stackSize = 256 * 1024;

// What the handler needs, made ready beforehand: it may neither allocate nor take a lock.
SignalSafeText<4096> reportFolder;
SignalSafeText<1024> reportHead;
std::atomic_flag isReporting = ATOMIC_FLAG_INIT;

std::string_view nameOf(int signal) {
    switch (signal) {
    case SIGSEGV:
        return "SIGSEGV";
    case SIGBUS:
        return "SIGBUS";
    case SIGFPE:
        return "SIGFPE";
    case SIGILL:
        return "SIGILL";
    case SIGABRT:
        return "SIGABRT";
    default:
        return "unknown signal";
    }
}

void put(const FileDescriptor& file, std::string_view text) {
    while (!text.empty()) {
        const auto written = write(file.get(), text.data(), text.size());
        if (written <= 0)
            return;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

std::uint64_t asNumber(const void* address) {
    return reinterpret_cast<std::uintptr_t>(address);
}

/// "  3 0x00007f... libQt6Core.so.6+0x1b2c3 symbol": the offset is what a symboliser wants. Only the module's
/// name is told, as its folder may be in somebody's home.
void putFrame(const FileDescriptor& file, int index, const void* address) {
    SignalSafeText<1024> line;
    line << (index < 10 ? "  " : index < 100 ? " " : "");
    line.number(static_cast<unsigned>(index)) << " 0x";
    line.number(asNumber(address), 16, 2 * sizeof address);
    Dl_info module{};
    if (dladdr(address, &module) != 0 && module.dli_fname) {
        const char* const slash = std::strrchr(module.dli_fname, '/');
        line << " " << (slash ? slash + 1 : module.dli_fname) << "+0x";
        line.number(asNumber(address) - asNumber(module.dli_fbase), 16);
        if (module.dli_sname)
            line << " " << module.dli_sname;
    }
    put(file, (line << "\n").view());
}

FileDescriptor createReport(std::chrono::sys_seconds now) {
    SignalSafeText<4224> path;
    path << reportFolder.view() << "/Fendrel-";
    path.time(now, "-", "") << "-";
    path.number(static_cast<std::uint64_t>(getpid())) << ".ips";
    return FileDescriptor(
        open(path.zeroTerminated(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
}

void writeReport(int signal, const siginfo_t& info) {
    const std::chrono::sys_seconds now(std::chrono::seconds(std::time(nullptr)));
    const auto file = createReport(now);
    if (!file)
        return;
    SignalSafeText<512> about;
    about << "Time: ";
    about.time(now, "T", ":") << "Z\nSignal: " << nameOf(signal) << " (";
    about.number(static_cast<unsigned>(signal)) << ")";
    if (info.si_code > 0 && signal != SIGABRT) { // sent by the kernel for what the program did
        about << " at address 0x";
        about.number(asNumber(info.si_addr), 16);
    }
    put(file, reportHead.view());
    put(file, (about << "\n\nStack of the crashed thread:\n").view());

    void* frames[frameLimit];
    const int count = backtrace(frames, frameLimit);
    for (int index = 0; index < count; ++index)
        putFrame(file, index, frames[index]);
}

void onCrash(int signal, siginfo_t* info, void*) {
    if (isReporting.test_and_set()) {
        for (;;) // another thread's crash is being reported, and ends the process
            pause();
    }
    // Reading the stack takes the loader's lock; a crash that holds it must still end the process.
    struct sigaction byDefault {};
    byDefault.sa_handler = SIG_DFL;
    sigaction(SIGALRM, &byDefault, nullptr);
    alarm(secondsForReport);
    writeReport(signal, *info);
    alarm(0);

    sigaction(signal, &byDefault, nullptr);
    raise(signal); // delivered when this returns, on the stack that crashed: a core dump shows it as it was
}

void prune(const QDir& folder) {
    auto reports = folder.entryInfoList({u"Fendrel-*.ips"_s}, QDir::Files, QDir::Time);
    for (const auto& report : reports.mid(CrashReporter::kept))
        QFile::remove(report.filePath());
}

void prepareTexts(const QString& folder) {
    reportFolder = {};
    reportFolder << QFile::encodeName(QDir(folder).absolutePath()).toStdString();
    const QString system = u"%1 (%2 %3, %4)"_s.arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(),
                                                   QSysInfo::kernelVersion(), QSysInfo::currentCpuArchitecture());
    reportHead = {};
    reportHead << "Fendrel " FENDREL_VERSION "\nSystem: " << system.toStdString() << "\n";
}

} // namespace

CrashReporter::CrashReporter(const QString& folder) {
    if (!QFileInfo::exists(folder)) {
        if (QDir().mkpath(folder))
            QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        else
            qCWarning(logFiles).noquote() << "Crashes will leave no report: couldn't make" << folder;
    }
    prune(QDir(folder));
    if (hasSanitizer)
        return;
    prepareTexts(folder);
    void* frame = nullptr;
    backtrace(&frame, 1); // the first call loads a library, which a handler must not do

    m_stack.resize(stackSize);
    const stack_t stack{.ss_sp = m_stack.data(), .ss_flags = 0, .ss_size = m_stack.size()};
    sigaltstack(&stack, nullptr);

    struct sigaction action {};
    action.sa_sigaction = onCrash;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    for (const int signal : caught)
        sigaddset(&action.sa_mask, signal);
    for (std::size_t index = 0; index < caught.size(); ++index)
        sigaction(caught[index], &action, &m_previous[index]);
}

CrashReporter::~CrashReporter() {
    if (hasSanitizer)
        return;
    for (std::size_t index = 0; index < caught.size(); ++index)
        sigaction(caught[index], &m_previous[index], nullptr);
    stack_t none{};
    none.ss_flags = SS_DISABLE;
    sigaltstack(&none, nullptr);
}

} // namespace fendrel
