#include "App/DockAppearance.h"

#include <QColor>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

struct Number {
    const char* field;
    double DockAppearance::*member;
    double least, most;
};

constexpr Number numbers[] = {
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

const Number* find(const QByteArray& field) {
    const auto* number = std::ranges::find_if(numbers, [&field](const Number& one) { return field == one.field; });
    return number == std::end(numbers) ? nullptr : number;
}

double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

const QList<DockAppearance::Preset>& DockAppearance::presets() {
    static const QList<Preset> list{
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Daylight")), {}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Paper")),
         {.background = {0xfb, 0xf7, 0xef},
          .opacity = 1,
          .cornerRadius = 12,
          .shadow = 0.2,
          .border = 0.08,
          .blur = false}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Mist")),
         {.background = {0xe2, 0xed, 0xf7}, .opacity = 0.96, .cornerRadius = 26, .shadow = 0.24, .border = 0.08}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Blossom")),
         {.background = {0xfb, 0xe4, 0xe8}, .opacity = 0.96, .cornerRadius = 22, .shadow = 0.24, .border = 0.08}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Clear")),
         {.background = {0xff, 0xff, 0xff}, .opacity = 0.58, .shadow = 0.18, .border = 0.2}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Midnight")),
         {.background = {0x1c, 0x1d, 0x22}, .isDark = true, .opacity = 0.86, .shadow = 0.45, .border = 0.14}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Graphite")),
         {.background = {0x33, 0x36, 0x3c}, .isDark = true, .opacity = 0.97, .cornerRadius = 14}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Dusk")),
         {.background = {0x2a, 0x24, 0x45}, .isDark = true, .opacity = 0.92, .cornerRadius = 24, .shadow = 0.4}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Forest")),
         {.background = {0x15, 0x31, 0x28}, .isDark = true, .opacity = 0.94, .shadow = 0.4, .border = 0.12}},
        {QStringLiteral(QT_TRANSLATE_NOOP("DockAppearance", "Smoke")),
         {.background = {0x00, 0x00, 0x00}, .isDark = true, .opacity = 0.64, .shadow = 0.3, .border = 0.22}},
    };
    return list;
}

std::optional<DockAppearance> DockAppearance::preset(const QString& name) {
    const auto found = std::ranges::find(presets(), name, &Preset::name);
    if (found == presets().end())
        return {};
    return found->look;
}

bool DockAppearance::set(const QByteArray& field, double value) {
    const Number* number = find(field);
    if (number == nullptr || std::isnan(value))
        return false;
    this->*number->member = std::clamp(value, number->least, number->most);
    return true;
}

DockAppearance::Range DockAppearance::range(const QByteArray& field) {
    const Number* number = find(field);
    if (number == nullptr)
        return {};
    return {.least = number->least, .most = number->most};
}

double DockAppearance::contrast(const QColor& color) const {
    const auto over = [this](float backdrop) {
        const auto blended = [this, backdrop](float channel) {
            return static_cast<float>(opacity) * channel + (1 - static_cast<float>(opacity)) * backdrop;
        };
        return QColor::fromRgbF(blended(background.redF()), blended(background.greenF()), blended(background.blueF()));
    };
    const double worst = std::min(contrastRatio(color, over(0)), contrastRatio(color, over(1)));
    // Somewhere between black and white lies what it cannot be told from.
    const double lightness = luminance(color);
    return luminance(over(0)) <= lightness && lightness <= luminance(over(1)) ? 1 : worst;
}

double contrastRatio(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool wantsLightText(const QColor& background) {
    return contrastRatio(background, DockAppearance{.isDark = true}.text()) >
           contrastRatio(background, DockAppearance{.isDark = false}.text());
}

QByteArray toJson(const DockAppearance& appearance) {
    QJsonObject object{{u"background"_s, appearance.background.name()}};
    for (const Number& number : numbers)
        object.insert(QLatin1StringView(number.field), appearance.*number.member);
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
    for (const Number& number : numbers) {
        const QJsonValue value = object[QLatin1StringView(number.field)];
        if (value.isUndefined())
            continue;
        if (!value.isDouble())
            return {};
        appearance.*number.member = std::clamp(value.toDouble(), number.least, number.most);
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
