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
    double opacity{0.9};                 ///< of the background, 0 to 1
    double cornerRadius{18};             ///< pixels, 0 to 40
    double spacing{6};                   ///< pixels between icons, 0 to 24
    double iconScale{1};                 ///< factor on the size of the icons, 0.75 to 1.5
    double magnification{1.35};          ///< factor under the pointer, 1 to 2
    double shadow{0.28};                 ///< opacity, 0 to 1
    double border{0.10};                 ///< opacity of the hairline around the dock, 0 to 1
    bool blur{true};                     ///< where the compositor can

    bool operator==(const DockAppearance&) const = default;

    /// One of its numbers, by name, drawn into its range; nothing else changes. False when there is none of that name.
    bool set(const QByteArray& field, double value);
    struct Range {
        double least{}, most{};
    };
    static Range range(const QByteArray& field); ///< of a number; empty when there is none of that name

    QColor text() const { return isDark ? QColor(0xf3, 0xf4, 0xf6) : QColor(0x1c, 0x1d, 0x21); }
    /// The least contrast that `color` can have on it, whatever lies behind it.
    double contrast(const QColor& color) const;

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

/// Contrast of two opaque colors as WCAG 2 defines it: 1 to 21.
double contrastRatio(const QColor& one, const QColor& other);
inline constexpr double readableContrast = 4.5; ///< what WCAG 2 asks of text at level AA
/// Whether light text is easier to read on a color than dark text.
bool wantsLightText(const QColor& background);

QByteArray toJson(const DockAppearance& appearance);
/// Nothing when the text is no JSON object or a member has the wrong type. Members that are missing take their default,
/// numbers outside their range the nearest end of it.
std::optional<DockAppearance> dockAppearanceFromJson(const QByteArray& json);

} // namespace fendrel
