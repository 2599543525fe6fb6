#include "UI/Dock/NoticeController.h"

#include "App/AppController.h"
#include "UI/Images/AppIcons.h"
#include "UI/Modes/ContextText.h"

#include <algorithm>

namespace fendrel {

using Kind = Notice::Kind;

namespace {

Notice notice(const DockUndo::Offer& offer) {
    return {.kind = Kind::undo, .text = offer.text, .tint = color(offer.color), .action = NoticeController::tr("Undo")};
}

Notice notice(const ModeSuggestions::Suggestion& suggestion) {
    return {.kind = Kind::suggestion,
            .text = NoticeController::tr("Switch to %1?").arg(suggestion.mode.name),
            .detail = suggestion.because,
            .symbol = suggestion.mode.symbol,
            .tint = color(suggestion.mode.tint),
            .action = NoticeController::tr("Switch"),
            .refusal = NoticeController::tr("Not Now"),
            .inMenu = NoticeController::tr("Switch to %1").arg(suggestion.mode.name)};
}

Notice notice(const ModeContext::Offer& offer) {
    return {.kind = Kind::offer,
            .text = NoticeController::tr("Bring back what was open in %1?").arg(offer.mode.name),
            .detail = offer.snapshot.note.value_or(contextContents(offer.snapshot)),
            .symbol = offer.mode.symbol,
            .tint = color(offer.mode.tint),
            .action = NoticeController::tr("Restore"),
            .refusal = NoticeController::tr("Not Now"),
            .inMenu = NoticeController::tr("Restore What Was Open")};
}

Notice notice(const QStringList& missing, const Mode& mode) {
    const QString names = missing.join(QStringLiteral(", "));
    return {.kind = Kind::missing,
            .text = missing.size() == 1 ? NoticeController::tr("Couldn't find %1 any more.").arg(names)
                                        : NoticeController::tr("Couldn't find %n document(s) any more.", nullptr,
                                                               static_cast<int>(missing.size())),
            .detail = missing.size() == 1 ? QString() : names,
            .symbol = QStringLiteral("questionmark.circle"),
            .tint = color(mode.tint),
            .action = NoticeController::tr("OK")};
}

} // namespace

NoticeController::NoticeController(AppController& controller, AppIcons& icons)
    : m_controller(controller), m_icons(icons) {
    connect(&controller.undo(), &DockUndo::changed, this, &NoticeController::update);
    connect(&controller.suggestions(), &ModeSuggestions::changed, this, &NoticeController::update);
    connect(&controller.context(), &ModeContext::changed, this, &NoticeController::update);
    update();
}

QVariantList NoticeController::all() const {
    QVariantList list;
    for (const Notice& each : m_notices)
        list.append(QVariant::fromValue(each));
    return list;
}

void NoticeController::accept(const QString& kind) {
    switch (enumValue<Kind>(kind).value_or(Kind::none)) {
    case Kind::undo:
        m_controller.undo().runUndo();
        break;
    case Kind::suggestion:
        m_controller.suggestions().accept();
        break;
    case Kind::offer:
        m_controller.context().restore();
        break;
    case Kind::missing:
        m_controller.context().dismiss();
        break;
    case Kind::none:
        break;
    }
}

void NoticeController::refuse(const QString& kind) {
    switch (enumValue<Kind>(kind).value_or(Kind::none)) {
    case Kind::undo:
        m_controller.undo().dismiss();
        break;
    case Kind::suggestion:
        m_controller.suggestions().dismiss();
        break;
    case Kind::offer:
    case Kind::missing:
        m_controller.context().dismiss();
        break;
    case Kind::none:
        break;
    }
}

void NoticeController::setHovered(const QString& kind, bool isHovered) {
    const Kind wanted = enumValue<Kind>(kind).value_or(Kind::none);
    if ((wanted == m_hovered) == isHovered)
        return;
    tellHovered(false);
    m_hovered = isHovered ? wanted : Kind::none;
    tellHovered(true);
    update();
}

void NoticeController::tellHovered(bool isHovered) {
    if (m_hovered == Kind::undo)
        m_controller.undo().setHovered(isHovered);
    else if (m_hovered == Kind::suggestion)
        m_controller.suggestions().setHovered(isHovered);
    else if (m_hovered == Kind::offer || m_hovered == Kind::missing)
        m_controller.context().setHovered(isHovered);
}

void NoticeController::update() {
    QList<Notice> notices;
    if (const auto& undo = m_controller.undo().offer())
        notices.append(notice(*undo));
    if (const auto& suggestion = m_controller.suggestions().suggestion()) {
        Notice& added = notices.emplace_back(notice(*suggestion));
        if (!suggestion->icon.isEmpty())
            added.icon = m_icons.source(suggestion->icon);
    }
    if (const auto& offer = m_controller.context().offer())
        notices.append(notice(*offer));
    if (const QStringList& missing = m_controller.context().missing(); !missing.isEmpty())
        notices.append(notice(missing, m_controller.engine().current()));
    if (const auto hovered = std::ranges::find(notices, m_hovered, &Notice::kind); hovered != notices.end()) {
        std::rotate(notices.begin(), hovered, hovered + 1);
        tellHovered(true); // it may be another one of its kind
    } else {
        tellHovered(false);
        m_hovered = Kind::none;
    }
    if (notices == m_notices)
        return;
    m_notices = notices;
    Q_EMIT changed();
}

} // namespace fendrel
