#pragma once

#include "Focus/Judgement.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <optional>

namespace fendrel {

class AppController;
class AppIcons;

/// The learned answers that a filter lets through, the newest first. One that changes stays where it is, so that its
/// user does not lose it.
class AnswersModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(int count READ rowCountOf NOTIFY countChanged)
    Q_PROPERTY(QStringList judgements READ judgements CONSTANT) ///< all that `judged` can be

public:
    struct Filter {
        QStringList words{};             ///< each is in the name, the key or the kind of thing, in any case
        std::optional<QString> modeID{}; ///< empty: those that belong to no mode
        std::optional<Source> source{};
        bool operator==(const Filter&) const = default;
    };

    AnswersModel(AppController& controller, AppIcons& icons);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const Filter& filter() const { return m_filter; }
    void show(const Filter& filter);
    QString nameOf(const QString& key) const;
    bool isApp(const QString& key) const; ///< or else a site
    static QStringList judgements();

Q_SIGNALS:
    void countChanged();

private:
    struct Row {
        QString key;
        qint64 time; ///< in milliseconds; 0 where nobody noted it
    };

    static bool isBefore(const Row& one, const Row& other);
    int rowCountOf() const { return static_cast<int>(m_rows.size()); }
    bool isShown(const QString& key) const;
    Row rowOf(const QString& key) const;
    void readAll();
    void readOne(const QString& key);
    void readNames();

    AppController& m_controller;
    AppIcons& m_icons;
    Filter m_filter;
    QList<Row> m_rows;
    QHash<QString, QString> m_names; ///< of the installed applications
};

} // namespace fendrel
