#pragma once

#include <QAbstractItemModel>
#include <QHash>
#include <QList>
#include <QVariantMap>

#include <functional>
#include <vector>

namespace fendrel {

/// What views see of a list model's rows: roles by name, each with what gives its value, mostly a member of the row.
template<class Row>
class RowRoles {
public:
    struct Role {
        const char* name;
        std::function<QVariant(const Row&)> value;
    };

    RowRoles(std::initializer_list<Role> roles) : m_roles(roles) {}

    QVariant value(const QList<Row>& rows, const QModelIndex& index, int role) const {
        const auto position = static_cast<std::size_t>(role - first);
        if (index.row() < 0 || index.row() >= rows.size() || role < first || position >= m_roles.size())
            return {};
        return m_roles[position].value(rows[index.row()]);
    }
    QHash<int, QByteArray> names() const {
        QHash<int, QByteArray> names;
        for (const Role& role : m_roles)
            names.insert(first + static_cast<int>(names.size()), role.name);
        return names;
    }
    /// For scripts, which can't read a model.
    QVariantMap map(const Row& row) const {
        QVariantMap map;
        for (const Role& role : m_roles)
            map.insert(QString::fromLatin1(role.name), role.value(row));
        return map;
    }

private:
    static constexpr int first = Qt::UserRole + 1;
    std::vector<Role> m_roles;
};

} // namespace fendrel
