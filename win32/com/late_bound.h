// An automation object whose members are called by name.
//
//   LateBound connection(object);
//   Variant rows = connection.call(L"Execute", {Variant::text(sql)});
//
// The object is held during the call, whatever the called side does. Errors are RunTimeErrors with
// the number and description that a scripting host would show.
#pragma once

#include <initializer_list>
#include <map>
#include <span>
#include <string>

#include "win32/com/com_ptr.h"
#include "win32/com/variant.h"

namespace pelorin {

class LateBound {
 public:
  explicit LateBound(ComPtr<IDispatch> object) : object_(std::move(object)) {}

  // A method, or a property's value.
  Variant call(const wchar_t* member, std::initializer_list<Variant> arguments = {});
  // The same for a member that gives an object; error 424 when it gives none.
  LateBound object(const wchar_t* member, std::initializer_list<Variant> arguments = {});
  void put(const wchar_t* member, const Variant& value);
  void putReference(const wchar_t* member, IDispatch* value);
  // The member at the object's default place with these arguments, else the one named Item.
  LateBound item(const Variant& key);

  // True when the object knows a member of that name.
  bool knows(const wchar_t* member);

  IDispatch* get() const noexcept { return object_.get(); }

 private:
  HRESULT find(const wchar_t* member, DISPID& id);
  DISPID idOf(const wchar_t* member);

  ComPtr<IDispatch> object_;
  std::map<std::wstring, DISPID> ids_;
};

// The object in `variant`; error 424 when there is none.
LateBound objectIn(const Variant& variant);

}  // namespace pelorin
