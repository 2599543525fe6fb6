#pragma once

#include <QObject>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// What is remembered of the modes that were left, for its user to look at and to forget.
class ContextsController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// In the order of the modes: `modeID`, `name`, `tint`, `when`, `contents` and `note`, which may be empty.
    Q_PROPERTY(QVariantList entries READ entries NOTIFY changed)

public:
    explicit ContextsController(AppController& controller);

    QVariantList entries() const;

    Q_INVOKABLE void forget(const QString& modeID);
    Q_INVOKABLE void askToForgetAll();

Q_SIGNALS:
    void changed();

private:
    AppController& m_controller;
};

} // namespace fendrel
