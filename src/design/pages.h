// What the design dialog asks of its pages and previews. entry/ hands it a factory that makes the
// real ones, so that this folder need not know them.
#pragma once

#include <memory>
#include <vector>

#include "design/annotation.h"
#include "design/availability.h"
#include "platform/dialog.h"

namespace lx {

class DesignServices;

class DesignPage {
public:
    DesignPage() = default;
    DesignPage(const DesignPage&) = delete;
    DesignPage& operator=(const DesignPage&) = delete;
    virtual ~DesignPage() = default;

    // The page's own child window; its title is the text of the tab.
    virtual Dialog& window() = 0;
    // After every change of the design and of a selection.
    virtual void showAvailability(const Availability& available) = 0;
};

class GeometryPage : public DesignPage {
public:
    // Once, when settings and check boxes have been filled.
    virtual void initialise() = 0;
    // Replaces the description by the summary of the layers and the bubble field by the design's
    // label (or the proposed name when it has none yet).
    virtual void RefreshDescription() = 0;
    virtual Text bubbleName() const = 0;
    virtual Text description() const = 0;
    virtual void setDescription(std::string_view text) = 0;
    virtual void setAnnotation(const Annotation& annotation) = 0;
    virtual Annotation annotation() const = 0;
    // The bubble field takes the focus, its text selected.
    virtual void focusBubble() = 0;
    virtual void redrawPlan() = 0;
};

// A page with a "Typ:" box and an offer: precast or steel.
class OfferPage : public DesignPage {
public:
    virtual void fillTypes(const std::vector<Text>& names) = 0;
    // A type outside the box selects the first one.
    virtual void selectType(int type) = 0;
    // From 0; -1 when the box is empty.
    virtual int selectedType() const = 0;
    // Its name; empty when the box is.
    virtual Text selectedTypeName() const = 0;
    // Fills the list with the model's offer anew and selects the entry that the model has selected.
    virtual void showOffer() = 0;
    // Which entries are drawn red depends on the free space.
    virtual void refreshOfferLooks() = 0;
};

class MonolithPage : public DesignPage {};

class LibraryPage : public DesignPage {
public:
    // From the library session: the projects and which one is selected.
    virtual void showProjects() = 0;
    // From the model: "<výchozí>" and the stored designs of the project; selects the one shown.
    virtual void showDesigns() = 0;
    // After a change of the design being edited: it may suit the opening no longer.
    virtual void refreshDesignLooks() = 0;
    virtual void setBearingCheck(bool on) = 0;
    virtual bool bearingCheck() const = 0;
};

class SectionPreview {
public:
    SectionPreview() = default;
    SectionPreview(const SectionPreview&) = delete;
    SectionPreview& operator=(const SectionPreview&) = delete;
    virtual ~SectionPreview() = default;

    virtual Size size() const = 0;  // px
    virtual void redraw() = 0;
    // True: the left edge of the section is the exterior face of the wall.
    virtual void setExteriorSide(bool left) = 0;
};

// Each page is made when the dialog opens and lives as long as its window. The services outlive
// them.
class PageFactory {
public:
    PageFactory() = default;
    PageFactory(const PageFactory&) = delete;
    PageFactory& operator=(const PageFactory&) = delete;
    virtual ~PageFactory() = default;

    virtual std::unique_ptr<GeometryPage> makeGeometry(DesignServices& services) = 0;
    virtual std::unique_ptr<OfferPage> makePrecast(DesignServices& services) = 0;
    virtual std::unique_ptr<OfferPage> makeSteel(DesignServices& services) = 0;
    virtual std::unique_ptr<MonolithPage> makeMonolith(DesignServices& services) = 0;
    virtual std::unique_ptr<LibraryPage> makeLibrary(DesignServices& services) = 0;
    virtual std::unique_ptr<SectionPreview> makeSection(DesignServices& services,
                                                        Picture& picture) = 0;
};

}  // namespace lx
