// A headless platform with a user who acts step by step.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>

#include "platform/headless/headless_platform.h"

namespace lx {

class HeadlessTest : public testing::Test {
protected:
    HeadlessTest() {
        platform.onIdle = [this] {
            if (m_steps.empty()) return false;
            const auto step = std::move(m_steps.front());
            m_steps.pop_front();
            step();
            return true;
        };
    }
    ~HeadlessTest() override { EXPECT_TRUE(m_steps.empty()) << "steps that nobody came to"; }

    void then(std::function<void()> step) { m_steps.push_back(std::move(step)); }

    HeadlessDialog& make(const DialogTemplate& layout, Dialog* owner = nullptr) {
        m_made.push_back(platform.createDialog(layout, {owner, nullptr}));
        return dynamic_cast<HeadlessDialog&>(*m_made.back());
    }

    HeadlessPlatform platform;

private:
    std::deque<std::function<void()>> m_steps;
    std::deque<std::unique_ptr<Dialog>> m_made;
};

}  // namespace lx
