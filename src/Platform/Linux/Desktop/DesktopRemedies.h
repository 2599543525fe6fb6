#pragma once

#include "Ports/Remedies.h"

#include <QJsonObject>

#include <functional>

namespace fendrel {

/// A table of what the desktops have and what packages bring, of which only what can be run here counts.
class DesktopRemedies final : public Remedies {
public:
    struct Surroundings {
        QStringList desktops{}; ///< as XDG_CURRENT_DESKTOP names them
        QString system{};       ///< "debian"
        QString extension{};    ///< folder of the browsers' companion extension
        /// Whether there is a program of that name, or a file or folder with that path. Any thread.
        std::function<bool(const QString& name)> exists = [](const QString&) { return false; };
        /// Whether this user's programs could change the folder, or put another in its place. Any thread.
        std::function<bool(const QString& folder)> isChangeable = [](const QString&) { return true; };
    };

    explicit DesktopRemedies(Surroundings surroundings);
    static Surroundings ofThisSession(const QString& extension);

    QHash<QString, Remedy> find() const override;
    void open(const QStringList& page) override;

private:
    struct Row {
        QString thing{};
        QStringList page{};
        QString needed{}; ///< for the command
        QString command{};
        QString link{}; ///< what the command makes of the extension, for every user; empty: it makes none
    };
    Row row(const QJsonObject& entry) const;

    Surroundings m_surroundings;
    QList<Row> m_rows; ///< meant for these surroundings, the best of a thing first
};

} // namespace fendrel
