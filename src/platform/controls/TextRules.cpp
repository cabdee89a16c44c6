#include "platform/controls/TextRules.h"

#include <algorithm>
#include <cctype>

namespace platform::text_rules {

bool StartsWithNoCase(const std::string& text, const std::string& prefix) {
    if (prefix.size() > text.size()) return false;
    for (size_t i = 0; i < prefix.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(text[i])) !=
            std::tolower(static_cast<unsigned char>(prefix[i])))
            return false;
    return true;
}

bool EqualNoCase(const std::string& a, const std::string& b) {
    return a.size() == b.size() && StartsWithNoCase(a, b);
}

bool LessNoCase(const std::string& a, const std::string& b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) <
               std::tolower(static_cast<unsigned char>(y));
    });
}

bool EditByKey(std::string& text, int& caret, int selLength, int key, bool multiLine,
               int maxLength) {
    caret = std::clamp(caret, 0, static_cast<int>(text.size()));
    const int selected = std::clamp(selLength, 0, static_cast<int>(text.size()) - caret);
    const std::string before = text;
    if (key == 8) {
        if (selected > 0) {
            text.erase(static_cast<size_t>(caret), static_cast<size_t>(selected));
        } else if (caret > 0) {
            text.erase(static_cast<size_t>(caret - 1), 1);
            --caret;
        }
        return text != before;
    }
    if (key == 13 && !multiLine) return false;
    text.erase(static_cast<size_t>(caret), static_cast<size_t>(selected));
    if (maxLength > 0 && static_cast<int>(text.size()) >= maxLength) {
        text = before;
        return false;
    }
    const std::string typed =
        key == 13 ? std::string("\r\n") : std::string(1, static_cast<char>(key));
    // Built anew rather than inserted in place, which GCC's -Wrestrict misreads here.
    text = text.substr(0, static_cast<size_t>(caret)) + typed +
           text.substr(static_cast<size_t>(caret));
    caret += static_cast<int>(typed.size());
    return true;
}

}  // namespace platform::text_rules
