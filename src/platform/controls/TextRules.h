#pragma once

#include <string>

// Text rules the controls share: how a typed key edits a field, how entries compare.
namespace platform::text_rules {

inline const std::string kEmpty;

inline std::string YesNo(bool b) {
    return b ? "True" : "False";
}

bool StartsWithNoCase(const std::string& text, const std::string& prefix);
bool EqualNoCase(const std::string& a, const std::string& b);
bool LessNoCase(const std::string& a, const std::string& b);

// What one typed key does to an edit field: the selection is replaced, Backspace deletes,
// Enter breaks the line only where the field has several. False when the text stays.
bool EditByKey(std::string& text, int& caret, int selLength, int key, bool multiLine,
               int maxLength);

}  // namespace platform::text_rules
