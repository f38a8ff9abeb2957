// A design from the host: read, laid out, settled, drawn and written again.
#include "composition/hand_over.h"
#include "composition/layout.h"
#include "composition/section_scale.h"
#include "design/layer_commands.h"
#include "design/layer_texts.h"
#include "design/opening.h"
#include "fuzz/targets.h"
#include "platform/recording_canvas.h"
#include "preview/plan_drawing.h"
#include "preview/section_drawing.h"

namespace lx::fuzz {

namespace {

void draw(CRez& head, CRez* current) {
    SectionInput section;
    section.head = &head;
    section.current = current;
    section.client = {300, 200};
    section.openingWidth = 1200;
    RecordingCanvas sectionCanvas;
    drawSection(sectionCanvas, section);

    settleOverhang(head, section.openingWidth);
    PlanInput plan;
    plan.head = &head;
    plan.current = current;
    plan.client = section.client;
    plan.openingWidth = section.openingWidth;
    plan.foldedSection = true;
    RecordingCanvas planCanvas;
    drawPlan(planCanvas, plan);
}

}  // namespace

void readHandOver(std::string_view input) {
    RezChain design = parseHandOver(input);
    const Bytes written = handOverBytes(design.head());
    const RezChain again = parseHandOver(written);
    promise(handOverBytes(again.head()) == written);
    if (design.empty()) return;

    CRez& head = *design.head();
    layOut(head);
    settleSection(head, {300, 200});
    compare(&head, again.head());
    availability(&head, design.last(), nullptr, nullptr);
    draw(head, design.last());
}

}  // namespace lx::fuzz
