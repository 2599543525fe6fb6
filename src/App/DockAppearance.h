#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace fendrel {

/// How the dock looks. The default value is the look of a new user in light mode.
struct DockAppearance {
    Q_GADGET
    Q_PROPERTY(QColor background MEMBER background)
    Q_PROPERTY(bool isDark MEMBER isDark)
    Q_PROPERTY(double opacity MEMBER opacity)
    Q_PROPERTY(double cornerRadius MEMBER cornerRadius)
    Q_PROPERTY(double spacing MEMBER spacing)
    Q_PROPERTY(double iconScale MEMBER iconScale)
    Q_PROPERTY(double magnification MEMBER magnification)
    Q_PROPERTY(double shadow MEMBER shadow)
    Q_PROPERTY(double border MEMBER border)
    Q_PROPERTY(bool blur MEMBER blur)

public:
    QColor background{0xf7, 0xf7, 0xf9}; ///< opaque
    bool isDark{false};                  ///< text and symbols are light
    double opacity{0.86};                ///< of the background, 0 to 1
    double cornerRadius{18};             ///< pixels, 0 to 40
    double spacing{6};                   ///< pixels between icons, 0 to 24
    double iconScale{1};                 ///< factor on the size of the icons, 0.75 to 1.5
    double magnification{1.35};          ///< factor under the pointer, 1 to 2
    double shadow{0.28};                 ///< opacity, 0 to 1
    double border{0.10};                 ///< opacity of the hairline around the dock, 0 to 1
    bool blur{true};                     ///< where the compositor can

    bool operator==(const DockAppearance&) const = default;

    struct Preset;
    /// The built-in looks; "Midnight" is among them.
    static const QList<Preset>& presets();
    /// A built-in look by its name; nothing when there is none of that name.
    static std::optional<DockAppearance> preset(const QString& name);
};

struct DockAppearance::Preset {
    QString name{};
    DockAppearance look{};
};

QByteArray toJson(const DockAppearance& appearance);
/// Nothing when the text is no JSON object or a member has the wrong type. Members that are missing take their default,
/// numbers outside their range the nearest end of it.
std::optional<DockAppearance> dockAppearanceFromJson(const QByteArray& json);

} // namespace fendrel
