// A form is data (its controls, captions, places, tab order) plus behaviour (what happens on a
// click). A screen shows it; derived forms answer the Form_ events.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/context_menu.h"
#include "controls/simple_controls.h"

namespace pelorin {

class Screen;

// A native window, opaque to portable code; 0 is none.
using WindowHandle = std::uintptr_t;

// Virtual-key codes that forms answer.
namespace key_code {
inline constexpr int enter = 13;
inline constexpr int escape = 27;
inline constexpr int space = 32;
// Page Up, Page Down, End, Home and the arrows follow each other.
inline constexpr int pageUp = 33;
inline constexpr int down = 40;
}  // namespace key_code

class FormView {
 public:
  virtual void captionChanged() = 0;
  // The form moved the focus to focused(), as pressing the default button does.
  virtual void focusMoved() {}

 protected:
  ~FormView() = default;
};

class Form {
 public:
  // `client` is the client area at design time, in twips.
  Form(std::string name, std::string caption, Size client);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  const std::string& name() const noexcept { return name_; }
  const std::string& caption() const noexcept { return caption_; }
  void setCaption(const std::string& caption);

  // Every control that stands on the form, in tab order.
  const std::vector<Control*>& controls() const noexcept { return controls_; }
  Control* find(std::string_view controlName) const;

  Size client() const noexcept { return client_; }
  bool resizable() const noexcept { return resizable_; }
  // Smallest outer size in twips, prevented while dragging; 0 x 0 when there is none.
  Size smallest() const noexcept { return smallest_; }

  // Enter presses the default button (unless the focus is on another button), Escape and the title
  // bar's close press the cancel button; without one, close unloads the form.
  Button* defaultButton() const noexcept { return defaultButton_; }
  Button* cancelButton() const noexcept { return cancelButton_; }

  bool isOpen() const noexcept { return screen_ != nullptr; }
  Screen* screen() const noexcept { return screen_; }
  // The form's window; 0 while it is closed.
  WindowHandle hwnd() const;
  // The form is unloaded with the form of this window, whoever owns its own window; 0: with none.
  // For a form that is owned only later, or by hand.
  WindowHandle leader() const noexcept { return leader_; }
  void setLeader(WindowHandle leader) noexcept { leader_ = leader; }
  void unload();

  // Called once after every unload; whoever keeps the form may retire it here.
  std::function<void()> onUnloaded;

  // Events, raised by the screen. None lets an error out.
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Resize() {}
  virtual void Form_Unload() {}
  // Sees every key before its control does; true when the key is used up.
  virtual bool Form_KeyDown(int keyCode);

  // What a right click on the form offers.
  ContextMenu& contextMenu() noexcept { return contextMenu_; }
  const ContextMenu& contextMenu() const noexcept { return contextMenu_; }

  // The operator's acts on the form.
  Control* focused() const noexcept { return focused_; }
  void userFocus(Control* control);
  // Puts the focus on the button and presses it.
  void userPress(Button& button);
  void userKeyDown(int keyCode);
  void userClose();
  void userResize(Size client);

  FormView* view() const noexcept { return view_; }
  void setView(FormView* view) noexcept { view_ = view; }

 protected:
  // `smallest` is the outer size; anchored controls follow the client area down to the size
  // `followed`, so that what stands apart there never meets.
  void setResizable(Size smallest, Size followed = {});
  void setDefaultButton(Button* button) noexcept { defaultButton_ = button; }
  void setCancelButton(Button* button) noexcept { cancelButton_ = button; }
  // True: the title bar's close presses the cancel button; false: it is a plain unload.
  void setCloseIsCancel(bool closeIsCancel) noexcept { closeIsCancel_ = closeIsCancel; }

 private:
  friend class Control;
  friend class Screen;
  void registerControl(Control& control);
  void forgetControl(const Control& control) noexcept;
  void placeAnchored();
  void userEnter();

  std::string name_;
  std::string caption_;
  Size designed_;
  Size client_;
  Size smallest_;
  Size followed_;
  bool resizable_ = false;
  bool closeIsCancel_ = true;
  std::vector<Control*> controls_;
  Button* defaultButton_ = nullptr;
  Button* cancelButton_ = nullptr;
  Control* focused_ = nullptr;
  ContextMenu contextMenu_;
  Screen* screen_ = nullptr;
  WindowHandle leader_ = 0;
  bool unloading_ = false;
  FormView* view_ = nullptr;
};

}  // namespace pelorin
