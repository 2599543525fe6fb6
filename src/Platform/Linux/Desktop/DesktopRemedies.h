#pragma once

#include "Ports/Remedies.h"

#include <QStringList>

#include <functional>

namespace fendrel {

/// A table of what the desktops have and what packages bring, of which only what can be run here counts.
class DesktopRemedies final : public Remedies {
public:
    struct Surroundings {
        QStringList desktops{}; ///< as XDG_CURRENT_DESKTOP names them
        QString system{};       ///< "debian"
        QString extension{};    ///< folder of the browsers' companion extension
        /// Whether there is a program of that name, or a file or folder with that path.
        std::function<bool(const QString& name)> exists = [](const QString&) { return false; };
    };

    explicit DesktopRemedies(Surroundings surroundings) : m_surroundings(std::move(surroundings)) {}
    static Surroundings ofThisSession(const QString& extension);

    bool hasPage(const QString& thing) const override { return !page(thing).isEmpty(); }
    void openPage(const QString& thing) override;
    QString command(const QString& thing) const override;

    /// The command line that opens it; empty: there is none.
    QStringList page(const QString& thing) const;

private:
    Surroundings m_surroundings;
};

} // namespace fendrel
