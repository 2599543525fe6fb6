#include "UI/Settings/WidgetSubjects.h"

#include <QPointer>
#include <QRegularExpression>

namespace fendrel {

using namespace Qt::StringLiterals;

WidgetSubjects::WidgetSubjects(Widgets& widgets, Shell& shell) : m_widgets(widgets), m_shell(shell) {
    connect(&widgets.weather(), &Feed::changed, this, &WidgetSubjects::changed);
    connect(&widgets.ticker(), &Feed::changed, this, &WidgetSubjects::changed);
}

QString WidgetSubjects::city() const {
    const WeatherFeed& weather = m_widgets.weather();
    if (!m_typedCity.isEmpty() || weather.isPlaceGuessed())
        return m_typedCity;
    return weather.place()->name;
}

QString WidgetSubjects::guessedCity() const {
    const WeatherFeed& weather = m_widgets.weather();
    const auto place = weather.place();
    return place && weather.isPlaceGuessed() ? place->name : QString();
}

void WidgetSubjects::setCity(const QString& typed) {
    const QString name = typed.simplified();
    if (m_isLooking && name == m_typedCity)
        return;
    m_cityProblem.clear();
    m_typedCity.clear();
    m_isLooking = false;
    if (name.isEmpty()) {
        m_widgets.reset({WeatherFeed::settingKey});
    } else if (name != city()) {
        m_typedCity = name;
        m_isLooking = true;
        m_widgets.weather().setCity(name, [self = QPointer(this), name](const auto& outcome) {
            if (self && self->m_isLooking && name == self->m_typedCity)
                self->found(name, outcome);
        });
    }
    Q_EMIT changed();
}

void WidgetSubjects::found(const QString& name, const Fetched<bool>& outcome) {
    m_isLooking = false;
    if (!outcome)
        m_cityProblem = message(outcome.error(), u"Open-Meteo"_s);
    else if (!*outcome)
        m_cityProblem = tr("No city called “%1” was found.").arg(name);
    else
        m_typedCity.clear();
    Q_EMIT changed();
}

QString WidgetSubjects::symbols() const {
    return m_widgets.ticker().symbols().join(u", "_s);
}

void WidgetSubjects::setSymbols(const QString& typed) {
    static const QRegularExpression between(u"[\\s,;]+"_s);
    const QStringList symbols = typed.split(between, Qt::SkipEmptyParts);
    QStringList different;
    for (const QString& symbol : symbols)
        if (!different.contains(symbol, Qt::CaseInsensitive))
            different.append(symbol);
    m_symbolsProblem.clear();
    if (different.size() > Ticker::mostSymbols)
        m_symbolsProblem = tr("Only the first %n are kept.", nullptr, static_cast<int>(Ticker::mostSymbols));
    if (symbols != m_widgets.ticker().symbols())
        m_widgets.ticker().setSymbols(symbols);
    Q_EMIT changed();
}

void WidgetSubjects::openWeatherSource() {
    m_shell.openAddress(QUrl(u"https://open-meteo.com/"_s));
}

} // namespace fendrel
