#include <ZelCommonView/dialogs/FileDialogHelper.h>

#include <ZelCommonView/common/StringHelper.h>

#include <regex>

namespace Zel::FileDialogHelper {

std::string completeFileName(const std::string& name, const FileDialogFilters& filters) {
    if (filters.empty())
        return name;
    const std::vector<std::string> pieces = StringHelper::split(filters.front().first, '|');
    if (pieces.empty())
        return name;
    const std::string& pattern = pieces.front();
    const std::size_t dot = pattern.rfind('.');
    if (dot == std::string::npos)
        return name;
    return name + "." + pattern.substr(dot + 1);
}

bool isMatchPattern(const std::string& name, const FileDialogFilters& filters) {
    static const std::regex anyCharacters("\\*");
    static const std::regex oneCharacter("\\?");
    for (const auto& filter : filters) {
        for (const std::string& piece : StringHelper::split(filter.first, '|')) {
            // Nothing else is escaped, and that is meant: the dot of "*.txt" stands for any character.
            std::string pattern = std::regex_replace(piece, anyCharacters, ".*");
            pattern = std::regex_replace(pattern, oneCharacter, ".");
            if (std::regex_match(name, std::regex("^" + pattern + "$", std::regex::ECMAScript)))
                return true;
        }
    }
    return false;
}

} // namespace Zel::FileDialogHelper
