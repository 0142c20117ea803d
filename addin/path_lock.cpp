#include "addin/path_lock.h"

#include <algorithm>

#include "win32/text/utf16.h"

namespace pelorin {

namespace {

constexpr DWORD patience = 5000;  // milliseconds
// Names of kernel objects have an end. Paths that differ before it share a lock, which does no
// harm.
constexpr std::size_t longestLockName = 200;

std::wstring lockName(const std::string& path) {
  std::wstring name = toWide(path);
  if (name.size() > longestLockName) name.erase(0, name.size() - longestLockName);
  std::replace(name.begin(), name.end(), L'\\', L'/');
  CharLowerBuffW(name.data(), static_cast<DWORD>(name.size()));
  return L"Global\\Pelorin " + name;
}

// Open to everybody: the operators of one machine share the file.
Handle openMutex(const std::wstring& name) {
  SECURITY_DESCRIPTOR everybody{};
  InitializeSecurityDescriptor(&everybody, SECURITY_DESCRIPTOR_REVISION);
  SetSecurityDescriptorDacl(&everybody, TRUE, nullptr, FALSE);
  SECURITY_ATTRIBUTES attributes{sizeof attributes, &everybody, FALSE};
  return Handle(CreateMutexW(&attributes, FALSE, name.c_str()));
}

// A holder that ended without letting go has left the file whole: it is replaced in one step.
bool acquire(const Handle& mutex) {
  if (!mutex) return false;
  const DWORD result = WaitForSingleObject(mutex.get(), patience);
  return result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

}  // namespace

PathLock::PathLock(const std::string& path)
    : mutex_(openMutex(lockName(path))), held_(acquire(mutex_)) {}

PathLock::~PathLock() {
  if (held_) ReleaseMutex(mutex_.get());
}

}  // namespace pelorin
