#include "host/title.h"

#include <cctype>

namespace orrelix {

std::string TitleFrom(std::string_view text) {
    std::string title;
    for (char byte : text)
        title += isalnum(static_cast<unsigned char>(byte)) ? byte : '_';
    return title.empty() || isdigit(static_cast<unsigned char>(title[0])) ? "v" + title : title;
}

} // namespace orrelix
