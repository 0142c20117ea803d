#include "win32/views/report_peer.h"

#include <algorithm>

#include "win32/text/utf16.h"
#include "win32/views/form_window.h"

namespace pelorin {

namespace {

bool startsWith(const std::wstring& text, const std::wstring& beginning) {
  if (text.size() < beginning.size()) return false;
  const int length = static_cast<int>(beginning.size());
  return CompareStringOrdinal(text.data(), length, beginning.data(), length, TRUE) == CSTR_EQUAL;
}

LVITEMW stateItem(UINT state, UINT mask) {
  LVITEMW item{};
  item.state = state;
  item.stateMask = mask;
  return item;
}

}  // namespace

Peer::NativeKind ReportPeer::nativeKind() const {
  return {WC_LISTVIEWW,
          WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS | LVS_SINGLESEL |
              LVS_NOSORTHEADER,
          WS_EX_CLIENTEDGE};
}

void ReportPeer::fill() {
  DWORD style = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  if (hasChecks()) {
    style |= LVS_EX_CHECKBOXES;
    send(LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
  }
  send(LVM_SETEXTENDEDLISTVIEWSTYLE, style, static_cast<LPARAM>(style));
  showColumns();
  showCount();
  showCurrent();
}

void ReportPeer::apply(Aspects changed) {
  const bool items = (changed & bit(Aspect::Items)) != 0;
  if ((changed & bit(Aspect::Columns)) != 0) showColumns();
  if (items) showCount();
  if (items || (changed & bit(Aspect::Selection)) != 0) {
    showCurrent();
    showTop();
  }
  if ((changed & (bit(Aspect::Item) | bit(Aspect::Items) | bit(Aspect::Checks))) != 0) {
    InvalidateRect(hwnd(), nullptr, FALSE);
  }
}

void ReportPeer::resolutionChanged() {
  Peer::resolutionChanged();
  shownColumns_.clear();
  showColumns();
}

// Widths that the operator dragged stay as long as the model's columns do.
void ReportPeer::showColumns() {
  std::vector<Column> wanted = columns();
  if (wanted == shownColumns_) return;
  while (send(LVM_DELETECOLUMN, 0) != 0) continue;
  int index = 0;
  for (const Column& column : wanted) {
    std::wstring header = toWide(column.header);
    LVCOLUMNW native{};
    native.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    native.cx = window().pixels(column.width);
    native.pszText = header.data();
    native.iSubItem = index;
    send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&native));
    ++index;
  }
  shownColumns_ = std::move(wanted);
}

bool ReportPeer::isHidden(std::size_t column) const {
  return column < shownColumns_.size() && shownColumns_[column].width == 0;
}

// By dragging its edge, by a double click on it, or by any other change of its width.
bool ReportPeer::wouldShowHidden(const NMHEADERW& change) const {
  switch (change.hdr.code) {
    case static_cast<UINT>(HDN_BEGINTRACKA):
    case static_cast<UINT>(HDN_BEGINTRACKW):
    case static_cast<UINT>(HDN_DIVIDERDBLCLICKA):
    case static_cast<UINT>(HDN_DIVIDERDBLCLICKW):
      return isHidden(static_cast<std::size_t>(change.iItem));
    case static_cast<UINT>(HDN_ITEMCHANGINGA):
    case static_cast<UINT>(HDN_ITEMCHANGINGW):
      return isHidden(static_cast<std::size_t>(change.iItem)) && change.pitem != nullptr &&
             (change.pitem->mask & HDI_WIDTH) != 0 && change.pitem->cxy != 0;
    default:
      return false;
  }
}

void ReportPeer::showCount() {
  send(LVM_SETITEMCOUNT, static_cast<WPARAM>(rowCount()), LVSICF_NOSCROLL);
}

void ReportPeer::showCurrent() const {
  if (nativeSelection() != currentRow()) {
    LVITEMW none = stateItem(0, LVIS_SELECTED | LVIS_FOCUSED);
    send(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&none));
  }
  const int caret = caretRow();
  if (caret < 0 || caret >= rowCount()) return;
  const UINT state = LVIS_FOCUSED | (caret == currentRow() ? UINT{LVIS_SELECTED} : 0U);
  LVITEMW item = stateItem(state, state);
  send(LVM_SETITEMSTATE, static_cast<WPARAM>(caret), reinterpret_cast<LPARAM>(&item));
}

void ReportPeer::showTop() const {
  const int wanted = topRow();
  const auto top = static_cast<int>(send(LVM_GETTOPINDEX));
  if (wanted < 0 || wanted == top || rowCount() == 0) return;
  RECT row{};
  row.left = LVIR_BOUNDS;
  send(LVM_GETITEMRECT, static_cast<WPARAM>(top), reinterpret_cast<LPARAM>(&row));
  send(LVM_SCROLL, 0, static_cast<LPARAM>(wanted - top) * (row.bottom - row.top));
}

int ReportPeer::nativeSelection() const {
  return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void ReportPeer::giveText(LVITEMW& item) {
  if ((item.mask & LVIF_TEXT) != 0) {
    textGiven_ = toWide(cellText(item.iItem, item.iSubItem));
    item.pszText = textGiven_.data();
  }
  if ((item.mask & LVIF_STATE) != 0 && hasChecks()) {
    item.state |= INDEXTOSTATEIMAGEMASK(isChecked(item.iItem) ? 2U : 1U);
    item.stateMask |= LVIS_STATEIMAGEMASK;
  }
}

void ReportPeer::clicked(const NMITEMACTIVATE& click) {
  LVHITTESTINFO hit{};
  hit.pt = click.ptAction;
  send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  if (hit.iItem < 0) return;
  if (hasChecks() && (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON) {
    checkRow_ = hit.iItem;
    act(checkAct);
  } else if (click.hdr.code == static_cast<UINT>(NM_DBLCLK)) {
    act(doubleClickAct);
  }
}

// The row whose first text starts with what was typed, or -1.
int ReportPeer::findRow(const NMLVFINDITEMW& search) const {
  const int count = rowCount();
  if ((search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || count == 0) return -1;
  const std::wstring typed = search.lvfi.psz;
  for (int step = 0; step < count; ++step) {
    const int row = (std::max(search.iStart, 0) + step) % count;
    if (startsWith(toWide(cellText(row, 0)), typed)) return row;
  }
  return -1;
}

LRESULT ReportPeer::onNotify(NMHDR& header) {
  switch (header.code) {
    case static_cast<UINT>(LVN_GETDISPINFOW):
      giveText(reinterpret_cast<NMLVDISPINFOW&>(header).item);
      return 0;
    case static_cast<UINT>(LVN_ODFINDITEMW):
      return findRow(reinterpret_cast<const NMLVFINDITEMW&>(header));
    case static_cast<UINT>(LVN_ITEMCHANGED):
    case static_cast<UINT>(LVN_ODSTATECHANGED):
      act(selectAct);
      return 0;
    case static_cast<UINT>(NM_CLICK):
    case static_cast<UINT>(NM_DBLCLK):
      clicked(reinterpret_cast<const NMITEMACTIVATE&>(header));
      return 0;
    case static_cast<UINT>(LVN_KEYDOWN):
      if (reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey == VK_SPACE && hasChecks()) {
        checkRow_ = static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
        if (checkRow_ >= 0) act(checkAct);
      }
      return 0;
    default:
      return 0;
  }
}

LRESULT ReportPeer::handle(UINT message, WPARAM w, LPARAM l) {
  if (message == LVM_SETCOLUMNWIDTH && isHidden(w)) return FALSE;
  if (message == WM_NOTIFY && wouldShowHidden(*reinterpret_cast<const NMHEADERW*>(l))) return TRUE;
  const LRESULT result = native(message, w, l);
  if (!applying() && message != LVM_GETTOPINDEX) reportTop();
  return result;
}

void ReportPeer::reportTop() {
  if (!live() || hwnd() == nullptr) return;
  const auto top = static_cast<int>(send(LVM_GETTOPINDEX));
  if (top != std::exchange(lastTop_, top)) scrolled(top);
}

// Single notifications do not tell the state: it is read when the control has finished.
void ReportPeer::runActs(unsigned acts) {
  if ((acts & selectAct) != 0) {
    const int row = nativeSelection();
    markPending(Aspect::Selection);
    if (row != currentRow()) rowPicked(row);
  }
  if (live() && (acts & checkAct) != 0) checkClicked(checkRow_);
  if (live() && (acts & doubleClickAct) != 0) rowDoubleClicked();
}

}  // namespace pelorin
