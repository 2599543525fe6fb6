#pragma once

#include <QByteArrayView>

#include <array>
#include <compare>
#include <vector>

namespace fendrel {

/// What tells one record of the log from all others, in the size of a uuid, so that tens of thousands are compared
/// without following a pointer. A key that is longer is stood for by its hash.
class NotificationKey {
public:
    explicit NotificationKey(QByteArrayView uuid);
    static NotificationKey ofRecord(qint64 id);               ///< for a record without a uuid
    auto operator<=>(const NotificationKey&) const = default; // NOLINT(modernize-use-nullptr): of the generated code

private:
    std::array<quint64, 2> m_words{};
};

/// The keys of all records at one moment, in the order in which the log gave them.
class NotificationKeys {
public:
    /// Reads the keys of the next moment in nearly the order of the last one: what stands where it stood is found
    /// without a search.
    class Comparison;

    void append(const NotificationKey& key) { m_keys.push_back(key); }
    std::size_t size() const { return m_keys.size(); }
    void reserve(std::size_t size) { m_keys.reserve(size); }

private:
    std::vector<NotificationKey> m_keys;
};

/// Tells for key after key whether it was among the keys of an earlier moment.
class NotificationKeys::Comparison {
public:
    explicit Comparison(const NotificationKeys& before) : m_before(before.m_keys) {}
    bool contains(const NotificationKey& key);

private:
    const std::vector<NotificationKey>& m_before;
    std::size_t m_next = 0;                  ///< where the next key is expected
    std::vector<NotificationKey> m_sorted{}; ///< made when one is not where it was expected
};

} // namespace fendrel
