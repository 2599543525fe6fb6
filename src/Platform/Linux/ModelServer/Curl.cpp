#include "Platform/Linux/ModelServer/Curl.h"

#include <QLibrary>

#include <optional>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

std::optional<Curl> open() {
    QLibrary library(u"curl"_s, 4);
    Curl curl;
    const auto found = [&](auto& function, const char* name) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(library.resolve(name));
        return function != nullptr;
    };
    const bool isWhole =
        found(curl.globalInit, "curl_global_init") && found(curl.easyInit, "curl_easy_init") &&
        found(curl.easySetopt, "curl_easy_setopt") && found(curl.easyGetinfo, "curl_easy_getinfo") &&
        found(curl.easyStrerror, "curl_easy_strerror") && found(curl.easyCleanup, "curl_easy_cleanup") &&
        found(curl.slistAppend, "curl_slist_append") && found(curl.slistFreeAll, "curl_slist_free_all") &&
        found(curl.multiInit, "curl_multi_init") && found(curl.multiSetopt, "curl_multi_setopt") &&
        found(curl.multiAddHandle, "curl_multi_add_handle") &&
        found(curl.multiRemoveHandle, "curl_multi_remove_handle") &&
        found(curl.multiSocketAction, "curl_multi_socket_action") &&
        found(curl.multiInfoRead, "curl_multi_info_read") && found(curl.multiCleanup, "curl_multi_cleanup");
    if (!isWhole || curl.globalInit(CURL_GLOBAL_NOTHING) != CURLE_OK)
        return {};
    return curl;
}

} // namespace

const Curl* Curl::library() {
    static const std::optional<Curl> curl = open();
    return curl ? &*curl : nullptr;
}

} // namespace fendrel
