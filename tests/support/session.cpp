#include "tests/support/session.h"

#include <exception>
#include <utility>

namespace lx {

Session::Session(host::Driver& driver) : m_driver(driver) {
    m_driver.drive([this](host::Driver& d) { return runNext(d); });
}

Session::~Session() {
    m_driver.settle();
    m_driver.drive(nullptr);
}

void Session::then(std::function<void(host::Driver&)> step) {
    m_steps.push_back(std::move(step));
}

void Session::inDialog(std::string_view title, std::function<void(host::Driver&)> step) {
    then([wanted = std::string(title), act = std::move(step)](host::Driver& d) {
        d.expectDialog(wanted);
        act(d);
    });
}

std::string Session::failure() const {
    m_driver.settle();
    if (!m_failure.empty()) return m_failure;
    const std::string abandoned = m_driver.abandoned();
    if (!abandoned.empty()) return "nobody was left to act in " + abandoned;
    if (!m_steps.empty()) return std::to_string(m_steps.size()) + " steps were not reached";
    return {};
}

bool Session::runNext(host::Driver& driver) {
    if (!m_failure.empty()) {
        driver.cancelTop();
        return true;
    }
    if (m_steps.empty()) return false;
    // Taken off first: the step may open a dialog in which the next one is run.
    const std::function<void(host::Driver&)> step = std::move(m_steps.front());
    m_steps.pop_front();
    try {
        step(driver);
    } catch (const std::exception& error) {
        if (m_failure.empty()) m_failure = error.what();
    }
    return true;
}

}  // namespace lx
