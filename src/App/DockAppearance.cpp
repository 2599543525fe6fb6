#include "App/DockAppearance.h"

#include <QColor>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

struct Range {
    const char* field;
    double DockAppearance::*member;
    double least, most;
};

constexpr Range ranges[] = {
    {"opacity", &DockAppearance::opacity, 0, 1},
    {"cornerRadius", &DockAppearance::cornerRadius, 0, 40},
    {"spacing", &DockAppearance::spacing, 0, 24},
    {"iconScale", &DockAppearance::iconScale, 0.75, 1.5},
    {"magnification", &DockAppearance::magnification, 1, 2},
    {"shadow", &DockAppearance::shadow, 0, 1},
    {"border", &DockAppearance::border, 0, 1},
};

struct Flag {
    const char* field;
    bool DockAppearance::*member;
};

constexpr Flag flags[] = {{"isDark", &DockAppearance::isDark}, {"blur", &DockAppearance::blur}};

} // namespace

const QList<DockAppearance::Preset>& DockAppearance::presets() {
    static const QList<Preset> list{
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Daylight")), {}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Midnight")),
         {.background = {0x1c, 0x1d, 0x22}, .isDark = true, .opacity = 0.86, .shadow = 0.45, .border = 0.14}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Paper")),
         {.background = {0xfb, 0xf7, 0xef},
          .opacity = 1,
          .cornerRadius = 12,
          .shadow = 0.2,
          .border = 0.08,
          .blur = false}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Graphite")),
         {.background = {0x3a, 0x3d, 0x44}, .isDark = true, .opacity = 0.94, .cornerRadius = 14}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Clear")),
         {.background = {0xff, 0xff, 0xff}, .opacity = 0.45, .shadow = 0.18, .border = 0.2}},
    };
    return list;
}

std::optional<DockAppearance> DockAppearance::preset(const QString& name) {
    const auto found = std::ranges::find(presets(), name, &Preset::name);
    if (found == presets().end())
        return {};
    return found->look;
}

QByteArray toJson(const DockAppearance& appearance) {
    QJsonObject object{{u"background"_s, appearance.background.name()}};
    for (const Range& range : ranges)
        object.insert(QLatin1StringView(range.field), appearance.*range.member);
    for (const Flag& flag : flags)
        object.insert(QLatin1StringView(flag.field), appearance.*flag.member);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<DockAppearance> dockAppearanceFromJson(const QByteArray& json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return {};
    const QJsonObject object = document.object();
    DockAppearance appearance;
    if (const QJsonValue value = object[u"background"]; !value.isUndefined()) {
        const QColor colour(value.toString());
        if (!colour.isValid())
            return {};
        appearance.background = colour.rgb();
    }
    for (const Range& range : ranges) {
        const QJsonValue value = object[QLatin1StringView(range.field)];
        if (value.isUndefined())
            continue;
        if (!value.isDouble())
            return {};
        appearance.*range.member = std::clamp(value.toDouble(), range.least, range.most);
    }
    for (const Flag& flag : flags) {
        const QJsonValue value = object[QLatin1StringView(flag.field)];
        if (value.isUndefined())
            continue;
        if (!value.isBool())
            return {};
        appearance.*flag.member = value.toBool();
    }
    return appearance;
}

} // namespace fendrel
