// Drawings of the previews as text, compared with the files in drawings/. LX_WRITE_DRAWINGS=1
// writes the files anew; look at their differences before keeping them.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "platform/recording_canvas.h"
#include "preview/hit_regions.h"

namespace lx {

inline std::string fieldName(const HitRegion& region) {
    if (region.kind == region::layerName) return "";
    const std::string bend = std::to_string(region.target.bend);
    switch (region.target.field) {
        case EditField::width:
            return " width";
        case EditField::height:
            return " height";
        case EditField::maxOpening:
            return " maxOpening";
        case EditField::kind:
            return " kind";
        case EditField::bendRun:
            return " run of bend " + bend;
        case EditField::bendStep:
            return " step of bend " + bend;
        case EditField::length:
            break;
    }
    return " ?";
}

inline std::string asText(const HitRegion& region, const CRez* head) {
    int place = 0;
    for (const CRez* record = head; record && record != region.target.record; record = record->next)
        ++place;
    std::ostringstream text;
    text << "region kind " << region.kind << (region.absoluteOnly ? " absolute" : "") << ", record "
         << place << fieldName(region) << ", (" << region.x << "," << region.y << ") "
         << region.width << "x" << region.height << "\n";
    return text.str();
}

inline std::string recorded(const RecordingCanvas& canvas, const HitRegions& regions,
                            const CRez* head) {
    std::string text = canvas.asText();
    for (const HitRegion& region : regions) text += asText(region, head);
    return text;
}

inline void compareWithFile(const std::string& name, const std::string& drawn) {
    const std::string path = LX_SOURCE_DIR "/tests/preview/drawings/" + name + ".txt";
    if (std::getenv("LX_WRITE_DRAWINGS") != nullptr) {
        std::ofstream(path, std::ios::binary) << drawn;
        GTEST_SKIP() << name << " written anew";
    }
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    EXPECT_EQ(drawn, content.str()) << name;
}

}  // namespace lx
