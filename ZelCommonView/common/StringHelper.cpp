#include <ZelCommonView/common/StringHelper.h>

#include <glib.h>

#include <algorithm>

namespace Zel::StringHelper {

bool isInclude(const std::string& text, const std::string& part, unsigned long from, unsigned long to,
               bool ignoreCase) {
    to = std::min<unsigned long>(to, text.size());
    if (from > to || part.size() > to - from)
        return false;

    const auto isSame = [ignoreCase](char left, char right) {
        return left == right || (ignoreCase && g_ascii_tolower(left) == g_ascii_tolower(right));
    };
    const char* const end = text.data() + to;
    return part.empty() || std::search(text.data() + from, end, part.begin(), part.end(), isSame) != end;
}

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> pieces;
    std::size_t start = 0;
    for (std::size_t end = text.find(separator); end != std::string::npos;
         end = text.find(separator, start)) {
        pieces.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

} // namespace Zel::StringHelper
