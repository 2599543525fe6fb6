#pragma once

#include "UI/Settings/SettingsCatalog.h"
#include "UI/WordSearch.h"

#include <QObject>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

/// The entries in which every word of the query begins some word, whatever its case and accents; those that are called
/// so first, then those with it in their labels. A query without words finds nothing.
QList<SettingEntry> findSettings(const QList<SettingEntry>& entries, const QString& query);

/// A search over all settings, for the settings window.
class SettingsSearch : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString query MEMBER m_query NOTIFY changed)
    /// Of each: setting, pane, name (its label), paneName; label and help as marked text.
    Q_PROPERTY(QVariantList results READ results NOTIFY changed)

public:
    QVariantList results() const;

Q_SIGNALS:
    void changed();

private:
    QString m_query;
};

} // namespace fendrel
