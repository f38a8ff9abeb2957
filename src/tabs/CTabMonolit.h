// The page "Monolitické překlady". Of its commands only the removal of a layer is there yet; the
// other buttons are disabled.
#pragma once

#include <memory>

#include "design/pages.h"
#include "design/services.h"

namespace lx {

class CTabMonolit : public MonolithPage {
public:
    explicit CTabMonolit(DesignServices& services);

    Dialog& window() override { return *m_window; }
    void showAvailability(const Availability& available) override;

private:
    std::unique_ptr<Dialog> m_window;
    Button& m_remove;
};

}  // namespace lx
