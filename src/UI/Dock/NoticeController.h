#pragma once

#include "Base/EnumNames.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class AppIcons;

/// What a card beside the dock tells its user, and what can be done about it. Texts are in the user's language.
struct Notice {
    Q_GADGET
    QML_VALUE_TYPE(notice)
    Q_PROPERTY(QString kind READ kindName)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString detail MEMBER detail)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QColor tint MEMBER tint)
    Q_PROPERTY(QString action MEMBER action)
    Q_PROPERTY(QString refusal MEMBER refusal)
    Q_PROPERTY(QString inMenu MEMBER inMenu)

public:
    enum class Kind {
        none,
        undo,       ///< of an edit of a mode
        suggestion, ///< of a switch
        offer,      ///< of what was open in the mode
        missing,    ///< what of that is gone
    };
    Q_ENUM(Kind)

    Kind kind{};
    QString text{};
    QString detail{};
    QString icon{};   ///< the address of an application's; empty: the symbol
    QString symbol{}; ///< empty, too: a dot
    QColor tint{};
    QString action{};  ///< what the button says
    QString refusal{}; ///< what the other says; empty: there is none
    QString inMenu{};  ///< the action in words that need no card; empty: menus leave it out
    bool operator==(const Notice&) const = default;

    QString kindName() const { return enumName(kind); }
};

/// What there is to tell beside the dock: one thing at a time, the most fleeting first. What a pointer is on stays, and
/// nothing takes its place meanwhile.
class NoticeController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(fendrel::Notice current READ current NOTIFY changed)
    Q_PROPERTY(QVariantList all READ all NOTIFY changed) ///< Notice, the current one first

public:
    NoticeController(AppController& controller, AppIcons& icons);

    Notice current() const { return m_notices.isEmpty() ? Notice() : m_notices.first(); }
    QVariantList all() const;

    // Of one that is gone already, nothing is done.
    Q_INVOKABLE void accept(const QString& kind);
    Q_INVOKABLE void refuse(const QString& kind);
    Q_INVOKABLE void setHovered(const QString& kind, bool isHovered);

Q_SIGNALS:
    void changed();

private:
    void update();
    void tellHovered(bool isHovered);

    AppController& m_controller;
    AppIcons& m_icons;
    QList<Notice> m_notices;
    Notice::Kind m_hovered{};
};

} // namespace fendrel
