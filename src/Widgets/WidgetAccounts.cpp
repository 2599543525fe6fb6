#include "Widgets/WidgetAccounts.h"

#include "Base/EnumNames.h"

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

const QList<WidgetAccounts::Description>& WidgetAccounts::all() {
    static const QList<Description> table = [] {
        const auto row = [](Service service, const QString& name, const QString& address) {
            return Description{.service = service, .name = name, .keyAddress = QUrl(u"https://"_s + address)};
        };
        return QList<Description>{
            row(Service::github, u"GitHub"_s, u"github.com/settings/tokens/new?scopes=repo&description=Fendrel"_s),
            row(Service::stripe, u"Stripe"_s, u"dashboard.stripe.com/apikeys/create"_s),
            row(Service::lemonSqueezy, u"Lemon Squeezy"_s, u"app.lemonsqueezy.com/settings/api"_s),
            row(Service::paddle, u"Paddle"_s, u"vendors.paddle.com/authentication-v2"_s),
            row(Service::dodo, u"Dodo Payments"_s, u"app.dodopayments.com/developer/api-keys"_s),
            row(Service::vercel, u"Vercel"_s, u"vercel.com/account/settings/tokens"_s),
            row(Service::linear, u"Linear"_s, u"linear.app/settings/account/security"_s),
            row(Service::sentry, u"Sentry"_s, u"sentry.io/settings/account/api/auth-tokens/"_s)};
    }();
    return table;
}

const WidgetAccounts::Description& WidgetAccounts::description(Service service) {
    return all()[static_cast<qsizetype>(service)];
}

QList<WidgetAccounts::Service> WidgetAccounts::usedBy(DockWidget widget) {
    switch (widget) {
    case DockWidget::github:
        return {Service::github};
    case DockWidget::revenue:
        return {Service::stripe, Service::lemonSqueezy, Service::paddle, Service::dodo};
    case DockWidget::deploys:
        return {Service::vercel};
    case DockWidget::linear:
        return {Service::linear};
    case DockWidget::sentry:
        return {Service::sentry};
    default:
        return {};
    }
}

std::optional<WidgetAccounts::Problem> WidgetAccounts::problem(Service service) const {
    const auto found = m_problems.find(service);
    return found == m_problems.end() ? std::nullopt : std::optional(found->second);
}

bool WidgetAccounts::isBusy(Service service) const {
    return std::ranges::any_of(m_changes, [=](const auto& entry) { return entry.second.service == service; });
}

Handle WidgetAccounts::secret(Service service, std::function<void(const SecretStore::Secret&)> done) const {
    return m_keychain.read(enumName(service), std::move(done));
}

Handle WidgetAccounts::key(Service service, std::function<void(const std::optional<QString>&)> done) {
    return secret(service, [this, service, done = std::move(done)](const SecretStore::Secret& found) {
        set(service, found); // the keyring may have been locked or unlocked behind our back
        done(found ? *found : std::optional<QString>());
    });
}

void WidgetAccounts::read() {
    if (!std::exchange(m_isReadAsked, true))
        readFrom(0);
}

void WidgetAccounts::readAgain() {
    m_isReadAsked = true;
    readFrom(0);
}

void WidgetAccounts::unlock() {
    m_unlocking = m_keychain.unlock([this](std::optional<Problem>) { readAgain(); });
}

void WidgetAccounts::readFrom(qsizetype position) {
    if (position == all().size()) {
        m_isRead = true;
        Q_EMIT changed();
        Q_EMIT wasRead();
        return;
    }
    const Service service = all()[position].service;
    m_reading = m_keychain.read(enumName(service), [this, service, position](const SecretStore::Secret& secret) {
        const bool wasConnected = m_connected.contains(service);
        set(service, secret);
        if (m_isRead && m_connected.contains(service) != wasConnected)
            onChanged(service); // behind our back, or the keyring was unlocked
        readFrom(position + 1);
    });
}

bool WidgetAccounts::save(const QString& key, Service service, SecretStore::Done done) {
    const QString value = key.trimmed();
    if (value.isEmpty())
        return false;
    const int number = ++m_lastChange;
    m_changes[number] = {.service = service};
    m_changes[number].handle = m_keychain.save(value, enumName(service), finishing(number, true, std::move(done)));
    Q_EMIT changed();
    return true;
}

void WidgetAccounts::remove(Service service, SecretStore::Done done) {
    const int number = ++m_lastChange;
    m_changes[number] = {.service = service};
    m_changes[number].handle = m_keychain.remove(enumName(service), finishing(number, false, std::move(done)));
    Q_EMIT changed();
}

SecretStore::Done WidgetAccounts::finishing(int number, bool isConnected, SecretStore::Done done) {
    return [this, number, isConnected, done = std::move(done)](std::optional<Problem> problem) {
        const Change change = std::move(m_changes.extract(number).mapped());
        set(change.service, problem ? m_connected.contains(change.service) : isConnected, problem);
        Q_EMIT changed(); // it is no longer busy
        if (!problem)
            onChanged(change.service);
        done(problem);
    };
}

void WidgetAccounts::set(Service service, const SecretStore::Secret& found) {
    set(service, found && found->has_value(), found ? std::nullopt : std::optional(found.error()));
}

void WidgetAccounts::set(Service service, bool isConnected, std::optional<Problem> problem) {
    if (isConnected == m_connected.contains(service) && problem == this->problem(service))
        return;
    if (isConnected)
        m_connected.insert(service);
    else
        m_connected.erase(service);
    if (problem)
        m_problems[service] = *problem;
    else
        m_problems.erase(service);
    Q_EMIT changed();
}

} // namespace fendrel
