#include <ZelCommonView/common/NumericHelper.h>

#include <ZelCommonView/common/StringHelper.h>

#include <glib.h>

namespace Zel::NumericHelper {

namespace {

enum class Kind { Refused, Incomplete, Number };

// Walks over a text from its start; every operation takes what it finds and moves behind it.
class Scanner {
public:
    explicit Scanner(const std::string& given) : text(given) {}

    bool takeAny(const char* characters) {
        const bool isFound =
            position < text.size() && std::string(characters).find(text[position]) != std::string::npos;
        position += isFound;
        return isFound;
    }

    std::size_t takeDigits() {
        const std::size_t start = position;
        while (position < text.size() && g_ascii_isdigit(text[position]))
            ++position;
        return position - start;
    }

    bool isAtEnd() const { return position == text.size(); }

private:
    const std::string& text;
    std::size_t position = 0;
};

Kind judgePlain(const std::string& text) {
    Scanner scanner(text);
    scanner.takeAny("+-");
    std::size_t digits = scanner.takeDigits();
    if (scanner.takeAny("."))
        digits += scanner.takeDigits();
    // An exponent needs something in front of it, and then digits of its own.
    if (digits > 0 && scanner.takeAny("eE")) {
        scanner.takeAny("+-");
        digits = scanner.takeDigits();
    }
    if (!scanner.isAtEnd())
        return Kind::Refused;
    return digits > 0 ? Kind::Number : Kind::Incomplete;
}

Kind judgeWord(const std::string& text) {
    const std::string typed = text.substr(!text.empty() && text.front() == '-');
    Kind kind = Kind::Refused;
    for (const std::string word : {"nan", "inf", "infinity"}) {
        // Within its own length the typed part can only stand at the start of the word.
        if (!StringHelper::isInclude(word, typed, 0, typed.size(), true))
            continue;
        if (typed.size() == word.size())
            return Kind::Number;
        kind = Kind::Incomplete;
    }
    return kind;
}

Kind judge(const std::string& text) {
    const Kind plain = judgePlain(text);
    return plain == Kind::Refused ? judgeWord(text) : plain;
}

} // namespace

bool isNumericInput(const std::string& text) {
    return judge(text) != Kind::Refused;
}

bool isIncompleteNumericInput(const std::string& text) {
    return judge(text) == Kind::Incomplete;
}

} // namespace Zel::NumericHelper
