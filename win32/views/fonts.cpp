#include "win32/views/fonts.h"

#include "win32/views/dpi.h"

namespace pelorin {

FontSet::FontSet(int dpi) {
  NONCLIENTMETRICSW metrics;
  if (nonClientMetrics(metrics, dpi)) {
    normal_ = Font(CreateFontIndirectW(&metrics.lfMessageFont));
    metrics.lfMessageFont.lfWeight = FW_BOLD;
    bold_ = Font(CreateFontIndirectW(&metrics.lfMessageFont));
  }
  const WindowDc screen(nullptr);
  const Selected selected(screen.get(), normal_.get());
  TEXTMETRICW text{};
  GetTextMetricsW(screen.get(), &text);
  lineHeight_ = text.tmHeight;
}

int FontSet::textWidth(const std::wstring& text, bool bold, bool prefix) const {
  const WindowDc screen(nullptr);
  const Selected selected(screen.get(), font(bold));
  RECT area{};
  DrawTextW(screen.get(), text.c_str(), static_cast<int>(text.size()), &area,
            DT_CALCRECT | DT_SINGLELINE | (prefix ? 0U : UINT{DT_NOPREFIX}));
  return area.right;
}

}  // namespace pelorin
