#pragma once

// Types of the services that views use as they are.

#include "App/Preferences.h"

#include <QtQml/qqmlregistration.h>

namespace fendrel {

struct PreferencesForQml {
    Q_GADGET
    QML_FOREIGN(fendrel::Preferences)
    QML_NAMED_ELEMENT(Preferences)
    QML_UNCREATABLE("made by the application")
};

struct DockAppearanceForQml {
    Q_GADGET
    QML_FOREIGN(fendrel::DockAppearance)
    QML_VALUE_TYPE(dockAppearance)
};

namespace PreferenceTypesForQml {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(fendrel::preferences)
QML_NAMED_ELEMENT(PreferenceTypes)
} // namespace PreferenceTypesForQml

} // namespace fendrel
