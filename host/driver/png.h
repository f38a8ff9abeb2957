// Writes pictures as PNG files, as nothing else that could is at hand where the driver runs.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lx::host {

// Three bytes a pixel (red, green, blue), rows from the top. The file's bytes.
std::string encodePng(int width, int height, const std::vector<std::uint8_t>& rgb);

}  // namespace lx::host
