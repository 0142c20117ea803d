// A push button's native twin.
#include "win32/views/form_window.h"
#include "win32/views/peers.h"

namespace pelorin {

namespace {

class ButtonPeer final : public Peer {
 public:
  ButtonPeer(FormWindow& window, Button& button) : Peer(window, button), button_(button) {}

  void onCommand(UINT code) override {
    if (code == BN_CLICKED) act(1);
  }

 protected:
  NativeKind nativeKind() const override { return {L"Button", WS_TABSTOP | BS_PUSHBUTTON}; }
  void runActs(unsigned) override {
    if (Form* form = window().form()) form->userPress(button_);
  }

 private:
  Button& button_;
};

}  // namespace

std::unique_ptr<Peer> makeButtonPeer(FormWindow& window, Button& button) {
  return std::make_unique<ButtonPeer>(window, button);
}

}  // namespace pelorin
