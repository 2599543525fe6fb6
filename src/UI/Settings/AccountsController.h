#pragma once

#include "Widgets/WidgetAccounts.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <map>

namespace fendrel {

class AppController;

/// The services that widgets can show, and which of them are connected.
class AccountsController : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    // What is wrong with the keyring, what to do about it, and the text of the button that does it; empty while all is
    // well.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(QString remedy READ remedy NOTIFY changed)
    Q_PROPERTY(QString remedyAction READ remedyAction NOTIFY changed)
    Q_PROPERTY(bool hasKeyring READ hasKeyring NOTIFY changed)

public:
    explicit AccountsController(AppController& controller);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString problem() const;
    QString remedy() const;
    QString remedyAction() const;
    bool hasKeyring() const { return keyringProblem() != WidgetAccounts::Problem::missing; }

    Q_INVOKABLE void look(); ///< into the keyring, which others may have changed
    Q_INVOKABLE void runRemedy();
    Q_INVOKABLE void openKeyPage(int row);
    Q_INVOKABLE void save(int row, const QString& key); ///< and tests it
    Q_INVOKABLE void test(int row);                     ///< whether the service takes the key that is there
    Q_INVOKABLE void askToRemove(int row);
    Q_INVOKABLE QString clipboardText() const;

Q_SIGNALS:
    void changed();
    void saved(int row); ///< the keyring has taken the key

private:
    std::optional<WidgetAccounts::Problem> keyringProblem() const;
    QString stateText(WidgetAccounts::Service service) const;
    QString newsText(WidgetAccounts::Service service) const;
    void accountsChanged();
    void show(WidgetAccounts::Service service);

    struct Test {
        Handle handle{};
        bool isRunning{true};
        QString problem{}; ///< empty: the key was taken
    };

    AppController& m_controller;
    WidgetAccounts& m_accounts;
    std::map<WidgetAccounts::Service, Test> m_tests; ///< of the keys that are there now
};

} // namespace fendrel
