#include "site/row_data.h"

#include "site/errors.h"
#include "site/text_lines.h"

namespace pelorin::site {

namespace {

[[noreturn]] void refuseDataLine(std::string_view line) {
  throw databaseError("The site data does not understand '" + std::string(line) + "'.");
}

class DataReader {
 public:
  explicit DataReader(RowSink& sink) : sink_(sink) {}

  void readLine(std::string_view line) {
    std::string_view rest = line;
    if (takeWord(rest) == "table" && line.find('|') == std::string_view::npos) {
      table_ = siteSchema().table(rest);
      if (!table_) refuseDataLine(line);
      columns_.clear();
    } else if (columns_.empty()) {
      readHeader(line);
    } else {
      readRow(line);
    }
  }

 private:
  void readHeader(std::string_view line) {
    if (!table_) refuseDataLine(line);
    ColumnNames names;
    for (const std::string_view name : split(line, '|')) {
      const Column* column = table_->column(name);
      if (!column) refuseDataLine(line);
      columns_.push_back(column);
      names.emplace_back(name);
    }
    sink_.begin(*table_, names);
  }

  void readRow(std::string_view line) {
    const std::vector<std::string_view> cells = split(line, '|');
    if (cells.size() != columns_.size()) refuseDataLine(line);
    Row row;
    for (std::size_t at = 0; at < cells.size(); ++at) {
      if (cells[at] == "null") {
        row.emplace_back(Null{});
      } else {
        row.push_back(convertTo(columns_[at]->type, std::string(cells[at])));
      }
    }
    sink_.row(row);
  }

  RowSink& sink_;
  const Table* table_ = nullptr;
  std::vector<const Column*> columns_;
};

}  // namespace

void readRows(std::string_view text, RowSink& sink) {
  DataReader reader(sink);
  for (const std::string_view line : lines(text)) {
    if (!trim(line).empty() && !line.starts_with('#')) reader.readLine(line);
  }
}

}  // namespace pelorin::site
