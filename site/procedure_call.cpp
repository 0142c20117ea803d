#include "site/procedure_call.h"

#include <optional>

#include "base/text_key.h"
#include "database/ado_numbers.h"
#include "site/errors.h"

namespace pelorin::site {

namespace {

class ArgumentBinder {
 public:
  explicit ArgumentBinder(const Procedure& procedure)
      : procedure_(procedure), values_(procedure.parameters.size()) {}

  void add(const Argument& argument) {
    const std::size_t place = argument.name.empty() ? nextPlace() : namedPlace(argument.name);
    if (values_[place]) {
      throw statementError("Parameter '" + argument.name + "' was supplied multiple times.");
    }
    values_[place] = convertTo(procedure_.parameters[place].type, argument.value);
    ++count_;
  }

  std::vector<Value> take() {
    std::vector<Value> result;
    for (std::size_t place = 0; place < values_.size(); ++place) {
      if (!values_[place]) {
        throw RunTimeError(ado::error::missingParameter,
                           "Procedure or function '" + procedure_.name + "' expects parameter '" +
                               procedure_.parameters[place].name + "', which was not supplied.");
      }
      result.push_back(std::move(*values_[place]));
    }
    return result;
  }

 private:
  std::size_t nextPlace() const {
    if (named_) {
      throw statementError("Must pass parameter number " + std::to_string(count_ + 1) +
                           " and subsequent parameters as '@name = value'.");
    }
    if (count_ >= values_.size()) {
      throw statementError("Procedure or function " + procedure_.name +
                           " has too many arguments specified.");
    }
    return count_;
  }

  std::size_t namedPlace(const std::string& name) {
    named_ = true;
    for (std::size_t place = 0; place < values_.size(); ++place) {
      if (equalNoCase(procedure_.parameters[place].name, name)) return place;
    }
    throw statementError(name + " is not a parameter for procedure " + procedure_.name + ".");
  }

  const Procedure& procedure_;
  std::vector<std::optional<Value>> values_;
  std::size_t count_ = 0;
  bool named_ = false;
};

}  // namespace

std::vector<Value> bindArguments(const Procedure& procedure,
                                 const std::vector<Argument>& arguments) {
  ArgumentBinder binder(procedure);
  for (const Argument& argument : arguments) binder.add(argument);
  return binder.take();
}

}  // namespace pelorin::site
