#pragma once

#include "Base/Handle.h"
#include "Base/Worker.h"
#include "Ports/Clock.h"
#include "Ports/SettingsStore.h"

#include <QHash>
#include <QJsonObject>
#include <QString>

#include <memory>

namespace fendrel {

/// Settings in one JSON file that people may read and edit while the program does not run. Members that are no
/// setting's type stay in the file as they are and read as absent. Where the file cannot be written, values
/// last as long as the program. Main thread; reads the file when it is made, writes it on the worker.
class SettingsFile final : public SettingsStore {
public:
    SettingsFile(QString path, Worker& disk, Clock& clock);
    ~SettingsFile() override; ///< what is not written yet goes to the worker

    std::optional<StoredValue> value(const QString& key) const override;
    void set(const QString& key, StoredValue value, Urgency urgency) override;
    void remove(const QString& key) override;
    Handle whenStored(std::function<void(bool isStored)> run) override;

private:
    void load();
    void write();

    QString m_path;
    Worker& m_disk;
    Clock& m_clock;
    QHash<QString, StoredValue> m_values;
    QJsonObject m_document; ///< the same values and those of others, as the file has them
    bool m_mayWrite = true;
    bool m_isUnwritten = false;
    Handle m_relaxedWrite;
    std::shared_ptr<bool> m_hasFailed = std::make_shared<bool>(false); ///< touched by the worker only
};

} // namespace fendrel
