// A user's session as a list of steps, each run when the windows wait for their user. When a step
// fails, or dialogs stay open with no step left, every dialog is cancelled and the failure is kept.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "host/driver/driver.h"

namespace lx {

class Session {
public:
    // Takes over the driver's drive(); the driver must outlive the session.
    explicit Session(host::Driver& driver);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void then(std::function<void(host::Driver&)> step);
    // The same, after waiting for the dialog with that title (UTF-8).
    void inDialog(std::string_view title, std::function<void(host::Driver&)> step);
    // Empty when all is well: the steps are used up and none failed.
    std::string failure() const;

private:
    bool runNext(host::Driver& driver);

    host::Driver& m_driver;
    std::deque<std::function<void(host::Driver&)>> m_steps;
    std::string m_failure;
};

}  // namespace lx
