#pragma once

#include "UI/Settings/SettingsCatalog.h"

#include <QObject>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

/// The entries in which every word of the query begins some word, whatever its case and accents; those with it in
/// their labels first. A query without words finds nothing.
QList<SettingEntry> findSettings(const QList<SettingEntry>& entries, const QString& query);

/// The text for a view that shows styled text, with the words that the query finds in bold.
QString markedText(const QString& text, const QString& query);

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
