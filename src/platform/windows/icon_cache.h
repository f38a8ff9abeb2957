// System icons made by the module's icon painter, at the first use of each number and size.
#pragma once

#include "platform/windows/gdi_canvas.h"

namespace lx {

// The icons live as long as the cache: take them off every window before it goes.
class IconCache {
public:
    explicit IconCache(const DrawingTools& tools) : m_tools(tools) {}
    IconCache(const IconCache&) = delete;
    IconCache& operator=(const IconCache&) = delete;
    ~IconCache();

    // Null when the painter knows no such icon. What it leaves unpainted is transparent.
    HICON get(int number, Size size);

private:
    HICON make(int number, Size size) const;

    DrawingTools m_tools;
    std::map<std::tuple<int, int, int>, HICON> m_icons;
};

}  // namespace lx
