#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class AppIcons;

/// The first run: which of the built-in modes the user starts with.
class FirstRunController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// The templates: modeID, name, symbol, tint, apps (names of the installed ones) and icons (theirs).
    Q_PROPERTY(QVariantList templates READ templates NOTIFY changed)
    Q_PROPERTY(QStringList starters READ starters CONSTANT)
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)

public:
    FirstRunController(AppController& controller, AppIcons& icons);

    QVariantList templates() const;
    QStringList starters() const; ///< chosen to begin with
    bool isDark() const;

    Q_INVOKABLE void finish(const QStringList& modeIDs);

Q_SIGNALS:
    void changed();

private:
    AppController& m_controller;
    AppIcons& m_icons;
};

} // namespace fendrel
