#include "platform/windows/wide_text.h"

#include <algorithm>

namespace lx {

std::wstring wide(std::string_view text) {
    std::wstring result(text.size(), L'\0');
    std::transform(text.begin(), text.end(), result.begin(), [](char byte) {
        return static_cast<wchar_t>(unicodeFromCp1250(static_cast<unsigned char>(byte)));
    });
    return result;
}

Text narrow(std::wstring_view text) {
    Text result;
    result.reserve(text.size());
    for (const wchar_t unit : text) {
        const int byte = cp1250FromUnicode(static_cast<char32_t>(unit));
        if (byte > 0) result.push_back(static_cast<char>(byte));
    }
    return result;
}

bool fitsCodePage(std::wstring_view text) {
    return std::all_of(text.begin(), text.end(), [](wchar_t unit) {
        return cp1250FromUnicode(static_cast<char32_t>(unit)) >= 0;
    });
}

}  // namespace lx
