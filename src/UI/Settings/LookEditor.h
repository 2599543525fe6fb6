#pragma once

#include "App/DockAppearance.h"

#include <QObject>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// Changes the dock's look while the dock shows it. Where it has a look for light and one for dark, one of them is
/// edited, and seen on the dock for as long as the editor is open.
class LookEditor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isOpen READ isOpen WRITE setOpen NOTIFY changed)
    Q_PROPERTY(bool isDark READ isDark WRITE setDark NOTIFY changed)
    Q_PROPERTY(fendrel::DockAppearance look READ look NOTIFY changed)
    Q_PROPERTY(bool isReadable READ isReadable NOTIFY changed)
    Q_PROPERTY(int preset READ preset NOTIFY changed)
    /// The built-in looks, each with its label and look.
    Q_PROPERTY(QVariantList presets READ presets CONSTANT)
    Q_PROPERTY(bool isBlended READ isBlended NOTIFY changed)
    Q_PROPERTY(bool canBlur READ canBlur NOTIFY changed)

public:
    explicit LookEditor(AppController& controller);

    bool isOpen() const;
    void setOpen(bool open);
    bool isDark() const; ///< the look for dark is edited
    void setDark(bool dark);
    const DockAppearance& look() const;
    bool isReadable() const; ///< its text, whatever lies behind it
    int preset() const;      ///< the built-in look that it is; -1 for one of the user's own
    QVariantList presets() const;
    bool isBlended() const; ///< a compositor runs, without which nothing shines through and no shadow falls
    bool canBlur() const;

    Q_INVOKABLE void choosePreset(int index);
    Q_INVOKABLE double least(const QString& field) const; ///< of a number of the look
    Q_INVOKABLE double most(const QString& field) const;
    /// What is changed step by step, with the pointer or a held key, is seen at once, and kept when it is over.
    Q_INVOKABLE void move(const QString& field, double value);
    Q_INVOKABLE void moveBackground(const QColor& color); ///< text becomes light or dark to suit
    Q_INVOKABLE void keep();
    Q_INVOKABLE void setBlur(bool on);

Q_SIGNALS:
    void changed();

private:
    AppController& m_controller;
};

} // namespace fendrel
