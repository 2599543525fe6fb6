#include "Messages/NotificationKeys.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <algorithm>
#include <cstring>

namespace fendrel {

NotificationKey::NotificationKey(QByteArrayView uuid) {
    constexpr qsizetype size = sizeof m_words;
    QByteArray hash;
    if (uuid.size() > size) {
        hash = QCryptographicHash::hash(uuid.toByteArray(), QCryptographicHash::Sha256);
        uuid = QByteArrayView(hash).first(size);
    }
    if (!uuid.isEmpty())
        std::memcpy(m_words.data(), uuid.data(), static_cast<std::size_t>(uuid.size()));
}

NotificationKey NotificationKey::ofRecord(qint64 id) {
    return NotificationKey(QByteArray("rec-" + QByteArray::number(id)));
}

bool NotificationKeys::Comparison::contains(const NotificationKey& key) {
    // What was removed or replaced since leaves a gap before the next key.
    constexpr std::size_t gap = 64;
    const auto end = std::min(m_before.size(), m_next + gap);
    for (std::size_t index = m_next; index < end; ++index) {
        if (m_before[index] == key) {
            m_next = index + 1;
            return true;
        }
    }
    if (m_next == m_before.size())
        return false; // records are added at the end, and each key stands for one
    if (m_sorted.empty()) {
        m_sorted = m_before;
        std::ranges::sort(m_sorted);
    }
    return std::ranges::binary_search(m_sorted, key);
}

} // namespace fendrel
