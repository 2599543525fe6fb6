#include "Platform/Shared/SettingsFile.h"

#include "Base/JsonFile.h"
#include "Base/Log.h"
#include "Ports/StoredValueJson.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>

#include <utility>

namespace fendrel {

using namespace std::chrono_literals;

SettingsFile::SettingsFile(QString path, Worker& disk, Clock& clock)
    : m_path(std::move(path)), m_disk(disk), m_clock(clock) {
    load();
}

SettingsFile::~SettingsFile() {
    if (m_isUnwritten)
        write();
}

void SettingsFile::load() {
    if (auto document = JsonFile::read(m_path))
        m_document = *std::move(document);
    else if (document.error() == JsonFile::ReadError::unreadable)
        m_mayWrite = JsonFile::keepAside(m_path).has_value(); // else a write would destroy what is there
    for (auto member = m_document.constBegin(); member != m_document.constEnd(); ++member) {
        if (auto value = StoredValueJson::decode(member.value()))
            m_values.insert(member.key(), *std::move(value));
    }
}

std::optional<StoredValue> SettingsFile::value(const QString& key) const {
    const auto found = m_values.constFind(key);
    return found == m_values.constEnd() ? std::nullopt : std::optional(*found);
}

void SettingsFile::set(const QString& key, StoredValue value, Urgency urgency) {
    const auto stored = m_values.constFind(key);
    if (stored == m_values.constEnd() || *stored != value) {
        m_document.insert(key, StoredValueJson::encode(value));
        m_values.insert(key, value);
        if (!std::exchange(m_isUnwritten, true) && urgency == Urgency::relaxed)
            m_relaxedWrite = m_clock.after(30s, [this] { write(); });
    }
    if (urgency == Urgency::atOnce && m_isUnwritten)
        write();
}

void SettingsFile::remove(const QString& key) {
    if (!m_document.contains(key))
        return;
    m_values.remove(key);
    m_document.remove(key);
    write();
}

Handle SettingsFile::whenStored(std::function<void(bool isStored)> run) {
    if (m_isUnwritten)
        write();
    const auto waiting = std::make_shared<std::function<void(bool)>>(std::move(run));
    m_disk.post({}, [waiting, mayWrite = m_mayWrite, hasFailed = m_hasFailed] {
        const bool isStored = mayWrite && !*hasFailed;
        // The application object, for this one may be gone when the worker gets here.
        QMetaObject::invokeMethod(
            qApp,
            [waiting, isStored] {
                if (const auto told = std::exchange(*waiting, {}))
                    told(isStored);
            },
            Qt::QueuedConnection);
    });
    return Handle([waiting] { *waiting = nullptr; });
}

void SettingsFile::write() {
    m_relaxedWrite.reset();
    m_isUnwritten = false;
    if (!m_mayWrite)
        return;
    m_disk.post(m_path, [path = m_path, document = m_document, hasFailed = m_hasFailed] {
        // A folder that refused once is asked again only when it looks better, so that the log says it once.
        const QFileInfo folder(QFileInfo(path).path());
        if (*hasFailed && !(folder.isDir() && folder.isWritable()))
            return;
        *hasFailed = !JsonFile::write(path, QJsonDocument(document).toJson());
    });
}

} // namespace fendrel
