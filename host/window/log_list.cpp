#include "host/window/log_list.h"

#include <utility>

#include "host/window/window.h"
#include "win32/text/utf16.h"

namespace pelorin::host {

namespace {

void addColumn(HWND list, int index, const LogList::Column& column) {
  std::wstring title = column.title;
  LVCOLUMNW description{};
  description.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
  description.fmt = column.format;
  description.cx = scaled(column.width);
  description.pszText = title.data();
  description.iSubItem = index;
  SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index),
               reinterpret_cast<LPARAM>(&description));
}

}  // namespace

LogList::LogList(HWND parent, int command, std::initializer_list<Column> columns, CellText text)
    : list_(makeControl(parent, WC_LISTVIEWW, L"",
                        WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS |
                            LVS_NOSORTHEADER,
                        command)),
      text_(std::move(text)) {
  constexpr DWORD looks = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, looks, looks);
  int index = 0;
  for (const Column& column : columns) addColumn(list_, index++, column);
}

bool LogList::endIsInSight() const {
  const LRESULT count = SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0);
  const LRESULT top = SendMessageW(list_, LVM_GETTOPINDEX, 0, 0);
  return top + SendMessageW(list_, LVM_GETCOUNTPERPAGE, 0, 0) >= count;
}

void LogList::show(std::size_t count) {
  const bool follow = endIsInSight();
  SendMessageW(list_, LVM_SETITEMCOUNT, count, LVSICF_NOSCROLL);
  if (follow && count > 0) SendMessageW(list_, LVM_ENSUREVISIBLE, count - 1, FALSE);
}

void LogList::notify(NMHDR& header) {
  if (header.code != LVN_GETDISPINFOW) return;
  LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(header).item;
  if ((item.mask & LVIF_TEXT) == 0) return;
  shown_ = toWide(text_(static_cast<std::size_t>(item.iItem), item.iSubItem));
  item.pszText = shown_.data();
}

}  // namespace pelorin::host
