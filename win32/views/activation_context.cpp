#include "win32/views/activation_context.h"

namespace pelorin {

ActivationContext::ActivationContext(HINSTANCE module) noexcept {
  ACTCTXW request{};
  request.cbSize = sizeof request;
  request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  request.hModule = module;
  request.lpResourceName = MAKEINTRESOURCEW(2);
  handle_ = CreateActCtxW(&request);
}

ActivationContext::~ActivationContext() {
  if (handle_ != INVALID_HANDLE_VALUE) ReleaseActCtx(handle_);
}

ActivationContext::Scope::Scope(const ActivationContext& context) noexcept
    : active_(context.handle_ != INVALID_HANDLE_VALUE &&
              ActivateActCtx(context.handle_, &cookie_) != 0) {}

ActivationContext::Scope::~Scope() {
  if (active_) DeactivateActCtx(0, cookie_);
}

}  // namespace pelorin
