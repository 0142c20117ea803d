// The column and parameter types of the site database, and what values fit into them.
#pragma once

#include <string>
#include <string_view>

#include "base/value.h"

namespace pelorin::site {

struct SqlType {
  enum class Kind { Int, SmallInt, TinyInt, Bit, Float, Text, SysName };
  Kind kind = Kind::Int;
  int length = 0;  // of a text, in UTF-16 units

  bool operator==(const SqlType&) const = default;
  bool isText() const { return kind == Kind::Text || kind == Kind::SysName; }
};

// "int", "nvarchar(128)" and so on; throws when it is none of them.
SqlType parseSqlType(std::string_view text);
std::string sqlTypeText(const SqlType& type);

// The value as a parameter of this type holds it. Conversion errors and "String or binary data
// would be truncated." as the server raises them; nothing is rounded or cut.
Value convertTo(const SqlType& type, const Value& value);

// Length in UTF-16 units, which is what nvarchar counts.
std::size_t utf16Length(std::string_view utf8);

}  // namespace pelorin::site
