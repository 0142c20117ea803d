#include "host/core/options.h"

namespace pelorin::host {

namespace {

class Parser {
 public:
  explicit Parser(const std::vector<std::string>& arguments) : arguments_(arguments) {}

  Options parse() {
    while (at_ < arguments_.size()) option(arguments_[at_++]);
    checkCombination();
    return options_;
  }

 private:
  void option(const std::string& name) {
    if (name == "--database") return value(name, options_.database);
    if (name == "--connect") return source(name, Source::AdoConnection);
    if (name == "--odbc") return source(name, Source::OdbcDataSource);
    if (name == "--component") return value(name, options_.component);
    if (name == "--out") return value(name, options_.outputFolder);
    if (name == "--pictures") return value(name, options_.picturesFolder);
    if (name == "--play") {
      options_.play = true;
    } else if (name == "--undo") {
      options_.undo = true;
    } else if (name == "--help" || name == "-h" || name == "/?") {
      options_.help = true;
    } else {
      throw OptionError("Unknown option: " + name + "\n\n" + usageText());
    }
  }

  void value(const std::string& name, std::string& target) {
    if (at_ == arguments_.size() || arguments_[at_].empty() || arguments_[at_].starts_with("--")) {
      throw OptionError("Option " + name + " needs a value.\n\n" + usageText());
    }
    target = arguments_[at_++];
  }

  void source(const std::string& name, Source chosen) {
    if (options_.source != Source::EmbeddedDatabase) throw OptionError(oneSource_);
    options_.source = chosen;
    value(name, options_.connectionString);
  }

  void checkCombination() const {
    const bool embedded = options_.source == Source::EmbeddedDatabase;
    if (!embedded && !options_.database.empty()) throw OptionError(oneSource_);
    const bool pictures = !options_.picturesFolder.empty();
    const bool ownDatabase = embedded && options_.database.empty();
    if ((pictures && !ownDatabase) || (options_.play && !options_.database.empty())) {
      throw OptionError(
          "A played request makes a database of its own: leave out the one you named.");
    }
    if (options_.undo && (embedded || !options_.play)) {
      throw OptionError("--undo belongs to --play with --odbc or --connect.");
    }
  }

  static constexpr const char* oneSource_ =
      "Only one of --database, --connect and --odbc can be given.";
  const std::vector<std::string>& arguments_;
  std::size_t at_ = 0;
  Options options_;
};

}  // namespace

Options parseOptions(const std::vector<std::string>& arguments) {
  return Parser(arguments).parse();
}

std::string usageText() {
  return "PelorinHost [options]\n"
         "  --database <file>       site database to open; made with the demonstration site when "
         "missing\n"
         "  --odbc <string>         use this ODBC data source instead\n"
         "  --connect <string>      use this ADO connection instead\n"
         "  --component <file>      load this Pelorin.dll, registered or not\n"
         "  --play                  play one request by itself, then end; over --odbc or --connect "
         "the\n"
         "                          database has to hold the demonstration site\n"
         "  --undo                  remove the rows that the played request wrote there\n"
         "  --out <folder>          where --play leaves its pictures (out)\n"
         "  --pictures <folder>     make pictures of every window, then end\n"
         "  --help                  show this text\n";
}

}  // namespace pelorin::host
