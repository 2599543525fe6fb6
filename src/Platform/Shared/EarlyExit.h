#pragma once

#include <functional>

namespace fendrel {

/// What is to be done when the process ends by exit() while this lives, past everything that the end of main would
/// do: toolkits end a program whose display is gone like that. `run` is called inside exit(), on the thread that
/// called it, with everything still in place but no event loop. At most one object at a time.
class EarlyExit {
public:
    explicit EarlyExit(std::function<void()> run);
    ~EarlyExit();
    EarlyExit(const EarlyExit&) = delete;
    EarlyExit& operator=(const EarlyExit&) = delete;

private:
    std::function<void()> m_run;
};

} // namespace fendrel
