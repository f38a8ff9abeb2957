// The page "Monolitické překlady": cast parts and insulation, without an offer.
#pragma once

#include <memory>

#include "design/design_services.h"
#include "tabs/design_page.h"

namespace lx {

class CTabMonolit : public DesignPage {
public:
    explicit CTabMonolit(DesignServices& services);

    Dialog& window() override { return *m_window; }
    void showAvailability(const Availability& available) override;

private:
    void insert(CommandAnswer (*command)(DesignEdit));

    DesignServices& m_services;
    std::unique_ptr<Dialog> m_window;
    Button& m_add;
    Button& m_remove;
    Button& m_insulation;
};

}  // namespace lx
