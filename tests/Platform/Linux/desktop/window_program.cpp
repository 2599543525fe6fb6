// A small application for tests: it has the windows that it is told to have on its standard input, one command a line,
// and answers "done" once the server knows. The first window is there from the start.
//
//     window                 another window; later commands are about the newest one
//     title TEXT             class INSTANCE CLASS       type NAME            dialogof ID
//     strut LEFT RIGHT TOP BOTTOM                       fullscreen           icon SIZE COLOUR
//     urgent                 asks for the user
//     flicker COUNT          opens and closes so many windows one after the other
//     paint COLOUR           close

#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

class Program {
public:
    Program() : m_connection(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(m_connection) != 0)
            std::exit(1);
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    }

    xcb_window_t open(const std::string& title) {
        create(title);
        xcb_map_window(m_connection, m_window);
        return m_window;
    }

    void obey(const std::string& line) {
        std::istringstream words(line);
        std::string verb;
        words >> verb;
        if (verb == "window") {
            open("another");
        } else if (verb == "title") {
            std::string title;
            std::getline(words >> std::ws, title);
            setText("_NET_WM_NAME", title);
        } else if (verb == "class") {
            std::string instance;
            std::string name;
            words >> instance >> name;
            setClass(instance, name);
        } else if (verb == "type") {
            std::string name;
            words >> name;
            remap([&] { setNumbers("_NET_WM_WINDOW_TYPE", "ATOM", {atom("_NET_WM_WINDOW_TYPE_" + name)}); });
        } else if (verb == "dialogof") {
            std::uint32_t leader{};
            words >> leader;
            remap([&] { setNumbers("WM_TRANSIENT_FOR", "WINDOW", {leader}); });
        } else if (verb == "strut") {
            std::vector<std::uint32_t> edges(4);
            for (auto& edge : edges)
                words >> edge;
            setNumbers("_NET_WM_STRUT", "CARDINAL", edges);
        } else if (verb == "fullscreen") {
            remap([&] { setNumbers("_NET_WM_STATE", "ATOM", {atom("_NET_WM_STATE_FULLSCREEN")}); });
        } else if (verb == "urgent") {
            setNumbers("WM_HINTS", "WM_HINTS", {256, 0, 0, 0, 0, 0, 0, 0, 0});
        } else if (verb == "icon") {
            std::uint32_t size{};
            std::uint32_t colour{};
            words >> size >> colour;
            std::vector<std::uint32_t> icon(2 + std::size_t{size} * size, colour);
            icon[0] = icon[1] = size;
            setNumbers("_NET_WM_ICON", "CARDINAL", icon);
        } else if (verb == "paint") {
            std::uint32_t colour{};
            words >> colour;
            xcb_change_window_attributes(m_connection, m_window, XCB_CW_BACK_PIXEL, &colour);
            xcb_clear_area(m_connection, 0, m_window, 0, 0, 0, 0);
        } else if (verb == "flicker") {
            int count{};
            words >> count;
            m_isFlickering = true; // what is asked of these windows is not meant for the program
            std::vector<xcb_window_t> windows;
            for (int index = 0; index < count; ++index) {
                windows.push_back(open("flicker"));
                settle();
                if (index > 5)
                    xcb_destroy_window(m_connection, windows[static_cast<std::size_t>(index) - 5]);
            }
            for (const auto window : windows)
                xcb_destroy_window(m_connection, window);
        } else if (verb == "close") {
            xcb_destroy_window(m_connection, m_window);
        }
    }

    void settle() { std::free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr)); }

    /// Ends the program when the window manager asks a window to close.
    void handleEvents() {
        while (auto* event = xcb_poll_for_event(m_connection)) {
            const bool isAsked = (event->response_type & 0x7f) == XCB_CLIENT_MESSAGE;
            std::free(event);
            if (isAsked && !m_isFlickering)
                std::exit(0);
        }
        if (xcb_connection_has_error(m_connection) != 0)
            std::exit(1);
    }

    int descriptor() const { return xcb_get_file_descriptor(m_connection); }

private:
    void create(const std::string& title) {
        m_window = xcb_generate_id(m_connection);
        const std::uint32_t background = m_screen->white_pixel;
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_screen->root, 100, 100, 300, 200, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL, &background);
        setText("_NET_WM_NAME", title);
        setClass("window-program", "Window-Program");
        setNumbers("WM_PROTOCOLS", "ATOM", {atom("WM_DELETE_WINDOW")});
    }

    /// Window managers read some properties only when a window appears.
    template<class Change>
    void remap(const Change& change) {
        xcb_destroy_window(m_connection, m_window);
        create("window");
        change();
        xcb_map_window(m_connection, m_window);
    }

    xcb_atom_t atom(const std::string& name) {
        auto* reply = xcb_intern_atom_reply(
            m_connection, xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str()),
            nullptr);
        const auto value = reply->atom;
        std::free(reply);
        return value;
    }

    void setText(const std::string& property, const std::string& text) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, atom(property), atom("UTF8_STRING"), 8,
                            static_cast<std::uint32_t>(text.size()), text.data());
    }

    void setClass(const std::string& instance, const std::string& name) {
        const std::string both = instance + '\0' + name + '\0';
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                            static_cast<std::uint32_t>(both.size()), both.data());
    }

    void setNumbers(const std::string& property, const std::string& type, const std::vector<std::uint32_t>& values) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, atom(property), atom(type), 32,
                            static_cast<std::uint32_t>(values.size()), values.data());
    }

    xcb_connection_t* m_connection;
    xcb_screen_t* m_screen{};
    xcb_window_t m_window{};
    bool m_isFlickering{};
};

} // namespace

int main(int argc, char** argv) {
    Program program;
    program.open(argc > 1 ? argv[1] : "window");
    program.settle();
    std::cout << "done" << std::endl;
    const bool isObedient = argc < 3; // with a second argument it only waits
    std::string waiting;
    for (;;) {
        program.handleEvents(); // what came along with an answer makes nothing readable
        fd_set readable;
        FD_ZERO(&readable);
        FD_SET(program.descriptor(), &readable);
        if (isObedient)
            FD_SET(STDIN_FILENO, &readable);
        if (select(program.descriptor() + 1, &readable, nullptr, nullptr, nullptr) < 0)
            return 1;
        if (!isObedient || !FD_ISSET(STDIN_FILENO, &readable))
            continue;
        char buffer[512];
        const auto count = read(STDIN_FILENO, buffer, sizeof buffer);
        if (count <= 0)
            return 0;
        waiting.append(buffer, static_cast<std::size_t>(count));
        for (auto end = waiting.find('\n'); end != std::string::npos; end = waiting.find('\n')) {
            program.obey(waiting.substr(0, end));
            waiting.erase(0, end + 1);
            program.settle();
            std::cout << "done" << std::endl;
        }
    }
}
