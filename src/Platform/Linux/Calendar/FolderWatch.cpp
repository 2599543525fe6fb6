#include "Platform/Linux/Calendar/FolderWatch.h"

#include <QFile>
#include <QSet>

#include <sys/inotify.h>

#include <array>
#include <cstring>

namespace fendrel {

FolderWatch::FolderWatch() : m_inotify(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    if (!m_inotify)
        return; // the user has too many
    m_notifier = std::make_unique<QSocketNotifier>(m_inotify.get(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { read(); });
}

bool FolderWatch::set(const QStringList& folders) {
    if (!m_inotify)
        return false;
    m_isComplete = true;
    const QSet<QString> wanted(folders.cbegin(), folders.cend());
    m_watches.removeIf([&](const auto& watch) {
        const bool isUnwanted = !wanted.contains(watch.key());
        if (isUnwanted)
            inotify_rm_watch(m_inotify.get(), watch.value());
        return isUnwanted;
    });
    constexpr uint32_t news = IN_CLOSE_WRITE | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF |
                              IN_MOVE_SELF | IN_ONLYDIR;
    bool hasNew = false;
    for (const QString& folder : folders) {
        if (m_watches.contains(folder))
            continue;
        const int watch = inotify_add_watch(m_inotify.get(), QFile::encodeName(folder).constData(), news);
        if (watch < 0) {
            m_isComplete = false;
            continue;
        }
        m_watches.insert(folder, watch);
        hasNew = true;
    }
    return hasNew;
}

void FolderWatch::read() {
    bool isNews = false;
    alignas(inotify_event) std::array<char, 16 * 1024> buffer;
    for (ssize_t size = 0; (size = ::read(m_inotify.get(), buffer.data(), buffer.size())) > 0;) {
        for (ssize_t at = 0; at < size;) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            const QByteArray name = event.len > 0 ? QByteArray(buffer.data() + at + sizeof event) : QByteArray();
            // Files under other names are on their way to their own, or no calendars.
            const bool isOther = !name.isEmpty() && (event.mask & IN_ISDIR) == 0 && !name.toLower().endsWith(".ics");
            isNews |= !isOther && (event.mask & IN_IGNORED) == 0;
            if ((event.mask & IN_IGNORED) != 0) // the folder went, or is not wanted any more
                m_watches.removeIf([&](const auto& watch) { return watch.value() == event.wd; });
            at += static_cast<ssize_t>(sizeof event + event.len);
        }
    }
    if (isNews)
        onChanged();
}

} // namespace fendrel
