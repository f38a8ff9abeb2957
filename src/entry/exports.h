// What stands behind the exported functions: the calls as C++, and the application that they work
// on.
#pragma once

#include <lxdata6dlg.h>

#include "entry/CLXdata6dlgApp.h"

namespace lx {

// A design call as the host made it. Every pointer may be null.
struct DesignArguments {
    void* parent = nullptr;
    double openingWidth = 0;   // mm
    double wallThickness = 0;  // mm
    double level = 0;          // m
    char* resultText = nullptr;
    std::int32_t* resultA = nullptr;
    std::int32_t* resultB = nullptr;
    OpeningBlock opening{};
    bool exteriorSide = false;
};

// Fills a buffer of LX_RESULT_TEXT_SIZE bytes; longer text is cut.
void copyResultText(std::string_view text, char* buffer);

int designCall(CLXdata6dlgApp& app, const DesignArguments& arguments);
int browserCall(CLXdata6dlgApp& app, void* parent);
int eraseCall(CLXdata6dlgApp& app, void* parent);

// The application that the exported functions work on; null while there is none, when they answer
// as if their dialog could not be made.
void setApplication(CLXdata6dlgApp* app);

}  // namespace lx
