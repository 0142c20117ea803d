// The native window of one open form: a real dialog that holds a peer for every control.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "controls/form.h"
#include "controls/tab_control.h"
#include "win32/views/dpi.h"
#include "win32/views/fonts.h"
#include "win32/views/native_window.h"
#include "win32/views/peer.h"
#include "win32/views/windows_api.h"

namespace pelorin {

class FormWindow final : public NativeWindow, public FormView {
 public:
  // Makes the hidden window without controls. Throws what the system gives for a refusal, as
  // present() does.
  FormWindow(UiThread& ui, Form& form, HWND owner);
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;
  ~FormWindow() override;

  // Null once the form is unloaded.
  Form* form() const noexcept { return form_; }
  static FormWindow* of(HWND window) noexcept;
  // The one that the window is or stands in, or null.
  static FormWindow* around(HWND window) noexcept;

  // Makes the controls from their models and shows the window.
  void present();
  void raise();
  void setOwner(HWND owner);
  // The form is unloaded: hides the window and forgets the models, which may be gone afterwards.
  void retire();
  void destroyWindow() noexcept { destroy(); }
  // Brings the native controls up to date.
  void flush();

  // The window is being destroyed, not by us; the form has to be unloaded.
  std::function<void(Form&)> onDestroyed;

  UiThread& uiThread() const noexcept { return ui(); }
  const FontSet& fonts() const noexcept { return *fonts_; }
  int dpi() const noexcept { return dpi_; }
  int pixels(std::int64_t twips) const noexcept { return twipsToPixels(twips, dpi_); }
  void markDirty(Peer& peer);

  void moveFocus(HWND control) const;
  void focusArrived(Control& control);
  // Brings a page to the front as the operator, with the focus on the tab control.
  void selectPage(TabControl& tabs, int page);

  // Where the control may end at most to the right, in its parent's pixels, given where it stands.
  int rightLimit(const Control& control, const RECT& place) const;

  // A key message meant for this window or a control of it, just taken from the message queue.
  // Returns what is to be dispatched in its place.
  MSG takeKey(const MSG& key) noexcept;

  void captionChanged() override;
  void focusMoved() override;

 protected:
  std::string designName() const override { return name_; }
  LRESULT onMessage(UINT message, WPARAM w, LPARAM l) override;

 private:
  using Changed = std::pair<Peer*, Peer::Aspects>;

  // form_window.cpp: opening and closing
  void buildControls();
  void build(Control& control);
  HWND parentFor(const Control& control);
  void showAtOwner();

  // form_window_follow.cpp: following the models
  std::vector<Changed> takeChanges();
  void followReach(const std::vector<Changed>& changes);
  void followEnabled(const Peer& peer);
  void followVisible(const Peer& peer);
  void followStacking(const Peer& group);
  void leave(HWND goingAway);

  // form_window_layout.cpp: places and sizes in pixels
  RECT placeOf(const Control& control) const;
  void layOut(const std::vector<Peer*>& peers);
  void layOutAll();
  SIZE clientPixels() const;
  SIZE outerSize() const;
  void useResolution(int dpi);
  void resolutionChanged(int dpi, const RECT& suggested);
  void clientResized();
  void limitSize(MINMAXINFO& limits) const;

  // form_window_messages.cpp
  std::optional<LRESULT> answer(UINT message, WPARAM w, LPARAM l);
  std::optional<LRESULT> answerAct(UINT message, WPARAM w, LPARAM l);
  std::optional<LRESULT> answerSurroundings(UINT message, WPARAM w, LPARAM l);
  void activated();
  bool openContextMenu(POINT place);
  void windowGoes();

  // form_window_keys.cpp
  void handleKey();
  bool keyForForm(const MSG& key);
  bool keyForPages(const MSG& key);
  bool mnemonicForPages(const MSG& key);
  TabControl* reachableTabs() const;

  Form* form_;
  std::string name_;
  int dpi_ = standardDpi;
  std::unique_ptr<FontSet> fonts_;
  std::vector<std::unique_ptr<Peer>> peers_;
  std::vector<Peer*> dirty_;
  std::optional<MSG> key_;
  bool presented_ = false;
  bool focusLate_ = false;  // the focus has to follow the form's as soon as the control is shown
};

}  // namespace pelorin
