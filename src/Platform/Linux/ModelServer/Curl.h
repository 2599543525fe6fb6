#pragma once

#include <curl/curl.h>

namespace fendrel {

/// What we use of libcurl. It is opened when the first request goes out: it brings two dozen libraries along, and a
/// program that links it waits for all of them before it begins.
struct Curl {
    static const Curl* library(); ///< null where it is not installed; main thread

    decltype(&curl_global_init) globalInit{};
    decltype(&curl_easy_init) easyInit{};
    decltype(&curl_easy_setopt) easySetopt{};
    decltype(&curl_easy_getinfo) easyGetinfo{};
    decltype(&curl_easy_strerror) easyStrerror{};
    decltype(&curl_easy_cleanup) easyCleanup{};
    decltype(&curl_slist_append) slistAppend{};
    decltype(&curl_slist_free_all) slistFreeAll{};
    decltype(&curl_multi_init) multiInit{};
    decltype(&curl_multi_setopt) multiSetopt{};
    decltype(&curl_multi_add_handle) multiAddHandle{};
    decltype(&curl_multi_remove_handle) multiRemoveHandle{};
    decltype(&curl_multi_socket_action) multiSocketAction{};
    decltype(&curl_multi_info_read) multiInfoRead{};
    decltype(&curl_multi_cleanup) multiCleanup{};
};

} // namespace fendrel
