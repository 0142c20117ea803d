// A list of rows and columns that holds no rows itself: it asks for the texts that it draws, so
// that a hundred thousand rows cost no more than ten.
#pragma once

#include <string>
#include <vector>

#include "win32/views/peer.h"

namespace pelorin {

class ReportPeer : public Peer {
 public:
  using Peer::Peer;

  LRESULT onNotify(NMHDR& header) final;
  void resolutionChanged() final;

 protected:
  struct Column {
    std::string header;
    int width;  // twips; 0 hides the column from the operator for good
    bool operator==(const Column&) const = default;
  };
  // The model, with rows and columns counted from 0 as they are shown. Texts of rows that are gone
  // are empty.
  virtual std::vector<Column> columns() const = 0;
  virtual int rowCount() const = 0;
  virtual std::string cellText(int row, int column) const = 0;
  virtual bool hasChecks() const { return false; }
  virtual bool isChecked(int /*row*/) const { return false; }
  // -1: none.
  virtual int currentRow() const = 0;
  // The row that the keyboard starts from; -1: none.
  virtual int caretRow() const { return currentRow(); }
  // -1 leaves the scroll place as it is.
  virtual int topRow() const { return -1; }

  // The operator's acts.
  virtual void rowPicked(int row) = 0;
  virtual void rowDoubleClicked() {}
  virtual void checkClicked(int /*row*/) {}
  virtual void scrolled(int /*topRow*/) {}

  NativeKind nativeKind() const final;
  void fill() final;
  void apply(Aspects changed) final;
  LRESULT handle(UINT message, WPARAM w, LPARAM l) final;
  void runActs(unsigned acts) final;

 private:
  static constexpr unsigned selectAct = 1;
  static constexpr unsigned doubleClickAct = 2;
  static constexpr unsigned checkAct = 4;

  void showColumns();
  bool isHidden(std::size_t column) const;
  bool wouldShowHidden(const NMHEADERW& change) const;
  void showCount();
  void showCurrent() const;
  void showTop() const;
  int nativeSelection() const;
  void reportTop();
  void giveText(LVITEMW& item);
  void clicked(const NMITEMACTIVATE& click);
  int findRow(const NMLVFINDITEMW& search) const;

  std::vector<Column> shownColumns_;
  std::wstring textGiven_;
  int checkRow_ = -1;
  int lastTop_ = 0;
};

}  // namespace pelorin
