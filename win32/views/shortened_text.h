// A text too long for its line, with what does not fit left out in its middle.
#pragma once

#include <functional>
#include <string>

namespace pelorin {

using TextWidth = std::function<int(const std::wstring& text)>;

// The text itself where it fits into `width`; else its beginning and its end, equally long, around
// an ellipsis: the end is what was added last and has to be seen.
std::wstring shortenedInMiddle(const std::wstring& text, int width, const TextWidth& widthOf);

}  // namespace pelorin
