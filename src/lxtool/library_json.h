// A library's file of JSON as a whole.
#pragma once

#include <functional>
#include <vector>

#include "lxtool/design_json.h"

namespace lx::lxtool {

inline constexpr std::string_view libraryFormat = "lxtool library";
inline constexpr std::int32_t libraryVersion = 1;

struct JsonProject {
    std::size_t line = 0;
    std::int32_t id = 0;
    std::optional<Text> name;  // none: designs have the id alone
};

// Whose designs stand behind or before them in the file; none, all that is wrong with the whole
// file told.
std::optional<std::vector<JsonProject>> projectsOfJson(Session& session, std::string_view file,
                                                       std::string_view bytes);
// The designs of a file with which projectsOfJson has found nothing wrong, in their order.
void eachDesignOfJson(Session& session, std::string_view file, std::string_view bytes,
                      const std::function<void(JsonDesign)>& use);

}  // namespace lx::lxtool
