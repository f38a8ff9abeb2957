#include "lxtool/progress.h"

namespace lx::lxtool {

namespace {
constexpr std::chrono::milliseconds untilShown(1000);
constexpr std::chrono::milliseconds betweenShown(200);
}  // namespace

Progress::Progress(const Console& console, std::string_view work, std::size_t total)
    : m_console(console),
      m_work(work),
      m_total(total),
      m_terminal(console.terminal),
      m_next(std::chrono::steady_clock::now() + untilShown) {}

Progress::~Progress() {
    if (m_shown) m_console.error("\r" + std::string(m_work.size() + 6, ' ') + "\r");
}

void Progress::show(std::size_t done) {
    const auto now = std::chrono::steady_clock::now();
    if (now < m_next) return;
    m_next = now + betweenShown;
    m_shown = true;
    const double part = static_cast<double>(done) / static_cast<double>(m_total > 0 ? m_total : 1);
    std::string percent = std::to_string(static_cast<int>(part * 100));
    percent.insert(0, percent.size() < 3 ? 3 - percent.size() : 0, ' ');
    m_console.error("\r" + m_work + " " + percent + " %");
}

}  // namespace lx::lxtool
