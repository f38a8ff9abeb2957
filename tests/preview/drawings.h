// Drawings of the previews as text, compared with the files in drawings/. LX_WRITE_DRAWINGS=1
// writes the files anew; look at their differences before keeping them.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <limits>
#include <sstream>

#include "platform/recording_canvas.h"
#include "preview/hit_regions.h"
#include "tests/support/designs.h"

namespace lx {

// A design with what its drawing depends on; `Scene` adds `HitRegions draw(Canvas&)`.
template <class Scene, class Input>
struct DrawnDesign {
    RezChain design;
    Input input;

    DrawnDesign(std::int32_t wall, double opening, Size client) {
        design.append(headOf(wall));
        input.client = client;
        input.openingWidth = opening;
    }
    Scene& opening(double width) {
        input.openingWidth = width;
        return self();
    }
    Scene& bend(std::int32_t run, std::int32_t step, bool flagged = false) {
        design.head()->addBend(run, step, flagged);
        return self();
    }
    Scene& add(Kind kind, std::int32_t width, std::int32_t height, const char* name = "prvek") {
        design.append(layer(kind, width, name))->height = height;
        return self();
    }
    // Makes the last record the current one.
    Scene& here() {
        input.current = design.last();
        return self();
    }
    Scene& self() { return static_cast<Scene&>(*this); }
};

inline std::string fieldName(const HitRegion& region) {
    if (region.kind == region::layerName) return "";
    // In the order of EditField.
    constexpr const char* names[] = {" width", " height",       " length",       " maxOpening",
                                     " kind",  " run of bend ", " step of bend "};
    const EditField field = region.target.field;
    const bool ofBend = field == EditField::bendRun || field == EditField::bendStep;
    return names[static_cast<int>(field)] + (ofBend ? std::to_string(region.target.bend) : "");
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

// What is added to a scene of that wall and size, and the file that shows it.
template <class Scene>
struct NamedScene {
    const char* name;
    std::int32_t wall;
    Size client;
    void (*build)(Scene&);
};

template <class Scene, std::size_t count>
void compareWithFiles(const NamedScene<Scene> (&drawings)[count]) {
    for (const NamedScene<Scene>& drawing : drawings) {
        Scene scene(drawing.wall, drawing.client);
        drawing.build(scene);
        RecordingCanvas canvas;
        const HitRegions regions = scene.draw(canvas);
        compareWithFile(drawing.name, recorded(canvas, regions, scene.design.head()));
    }
}

template <class Input, class Draw>
void expectBlackWithoutADesign(Input input, const Draw& draw) {
    RecordingCanvas black;
    input.client = {480, 400};
    EXPECT_TRUE(draw(black, input).empty());
    EXPECT_EQ(black.asText(), "clip (0,0)-(480,400)\nfill (0,0)-(480,400) 0,0,0\n");
}

template <class Scene>
void expectNothingWithoutRoom(Scene& scene) {
    for (const Size none : {Size{0, 130}, Size{370, 0}, Size{-1, -1}}) {
        scene.input.client = none;
        RecordingCanvas canvas;
        EXPECT_TRUE(scene.draw(canvas).empty());
        EXPECT_TRUE(canvas.empty());
    }
}

// Calls with scenes of every kind of layer and numbers as a damaged file has them: a size and a
// place.
template <class Scene, class Check>
void forWildScenes(const Check& check) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t numbers[] = {least, -300, 0, 80, most};
    for (const std::int32_t wall : {least, 300, most}) {
        for (const std::int32_t size : numbers) {
            for (const std::int32_t place : numbers) {
                Scene scene(wall);
                scene.bend(place, size).bend(size, place, true).bend(size, size);
                for (const int k : {1, 2, 3, 53, 0, 101, 102, 103, 500, -1}) {
                    scene.add(Kind{k}, place, size);
                }
                check(scene, size, place);
            }
        }
    }
}

}  // namespace lx
