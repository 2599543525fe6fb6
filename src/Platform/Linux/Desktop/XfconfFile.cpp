#include "Platform/Linux/Desktop/XfconfFile.h"

#include "Base/Log.h"
#include "Platform/Shared/AtNextTurn.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

/// The values of all properties in such a file, by their path; nothing when it is not whole.
std::optional<QMap<QString, QString>> xfconfValues(const QByteArray& xml) {
    QMap<QString, QString> values;
    QStringList path;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (reader.name() != "property"_L1)
            continue;
        if (token == QXmlStreamReader::StartElement) {
            path.append(reader.attributes().value("name"_L1).toString());
            if (reader.attributes().hasAttribute("value"_L1))
                values.insert(u'/' + path.join(u'/'), reader.attributes().value("value"_L1).toString());
        } else if (token == QXmlStreamReader::EndElement) {
            path.removeLast();
        }
    }
    return reader.hasError() ? std::nullopt : std::optional(values);
}

} // namespace

XfconfFile::XfconfFile(const QString& channel, Values values, Clock& clock, QObject* parent)
    : QObject(parent),
      m_path(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
             u"/xfce4/xfconf/xfce-perchannel-xml/%1.xml"_s.arg(channel)),
      m_values(std::move(values)) {
    constexpr auto patience = 15s; // others' changes put off the service's writing, too
    m_patience = clock.after(patience, [this] {
        qCWarning(logDesktop).noquote() << "What was changed is not in" << m_path << "yet";
        finish();
    });
    // At the next turn: whoever is told may delete this, and the watcher with it. The folder tells of every file that
    // is put in place of this one.
    const auto lookSoon = [this] { m_looking = atNextTurn([this] { look(); }); };
    connect(&m_folder, &QFileSystemWatcher::directoryChanged, this, lookSoon);
    m_folder.addPath(QFileInfo(m_path).path());
    lookSoon();
}

void XfconfFile::look() {
    QFile file(m_path);
    const auto stored = file.open(QIODevice::ReadOnly) ? xfconfValues(file.readAll()) : std::nullopt;
    if (!stored)
        return;
    const bool isStored = std::ranges::all_of(m_values.keys(), [&](const QString& property) {
        const auto value = stored->constFind(property);
        return (value == stored->cend() ? std::nullopt : std::optional(*value)) == m_values.value(property);
    });
    if (isStored)
        finish();
}

void XfconfFile::finish() {
    m_folder.disconnect(this);
    m_patience.reset();
    m_looking.reset();
    const auto run = onStored; // it may delete this
    run();
}

} // namespace fendrel
