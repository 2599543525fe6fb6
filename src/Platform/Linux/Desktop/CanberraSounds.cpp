#include "Platform/Linux/Desktop/CanberraSounds.h"

#include "Base/Log.h"

#include <QLibrary>

#include <canberra.h>

#include <type_traits>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QString fileName(Sound sound) {
    switch (sound) {
    case Sound::modeSwitch:
        return u"modeSwitch"_s;
    case Sound::focusStart:
        return u"focusStart"_s;
    case Sound::focusStop:
        return u"focusStop"_s;
    case Sound::messageLetThrough:
        return u"messageLetThrough"_s;
    }
    return {};
}

} // namespace

/// The library and its context. Where the library is not installed, it is silent.
class CanberraSounds::Output {
public:
    Output() {
        QLibrary library(u"canberra"_s, 0);
        const auto found = [&](auto& function, const char* name) {
            function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(library.resolve(name));
            return function != nullptr;
        };
        const bool isWhole = found(m_create, "ca_context_create") && found(m_destroy, "ca_context_destroy") &&
                             found(m_change, "ca_context_change_props") && found(m_play, "ca_context_play") &&
                             found(m_text, "ca_strerror");
        if (!isWhole) {
            qCInfo(logDesktop) << "There are no sounds without libcanberra";
            return;
        }
        if (m_create(&m_context) != CA_SUCCESS)
            m_context = nullptr;
        else
            m_change(m_context, CA_PROP_APPLICATION_NAME, "Fendrel", CA_PROP_APPLICATION_ID, "org.fendrel.Fendrel",
                     CA_PROP_APPLICATION_ICON_NAME, "org.fendrel.Fendrel", nullptr);
    }
    ~Output() {
        if (m_context)
            m_destroy(m_context);
    }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void play(const QString& path) {
        if (!m_context)
            return;
        const int result = m_play(m_context, 0, CA_PROP_MEDIA_FILENAME, path.toUtf8().constData(), CA_PROP_MEDIA_ROLE,
                                  "event", nullptr);
        if (result != CA_SUCCESS)
            qCInfo(logDesktop).noquote() << "A sound was not played:" << m_text(result);
    }

private:
    decltype(&ca_context_create) m_create{};
    decltype(&ca_context_destroy) m_destroy{};
    decltype(&ca_context_change_props) m_change{};
    decltype(&ca_context_play) m_play{};
    decltype(&ca_strerror) m_text{};
    ca_context* m_context = nullptr;
};

CanberraSounds::CanberraSounds(QString folder) : m_folder(std::move(folder)) {}

CanberraSounds::~CanberraSounds() = default;

void CanberraSounds::play(Sound sound) {
    if (!m_worker) {
        m_worker = std::make_unique<Worker>(u"sounds"_s);
        m_worker->post({}, [this] { m_output = std::make_unique<Output>(); });
    }
    // Where several wait, the newest is the one that still means something.
    m_worker->post(u"sound"_s, [this, path = m_folder + u'/' + fileName(sound) + u".wav"_s] { m_output->play(path); });
}

} // namespace fendrel
