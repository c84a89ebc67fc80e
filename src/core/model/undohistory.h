// The undo list with its redo list beside it. An undo record names one cell
// and its entry before the change: " 3, 8," + the old entry; a step that
// changed several cells at once joins its cell records with ";". Undoing a
// step moves its inverse to the redo list; any new change forgets the redo
// list, and clearing the undo list (as reading a puzzle does) clears both.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

namespace combwise {

class UndoHistory {
 public:
  // The undo records, newest first.
  bool empty() const { return m_undo.empty(); }
  std::size_t size() const { return m_undo.size(); }
  const std::string& front() const { return m_undo.front(); }
  const std::string& operator[](std::size_t i) const { return m_undo[i]; }

  // A new change: its record goes on top and whatever was undone can no
  // longer be redone.
  void push_front(std::string record) {
    m_undo.push_front(std::move(record));
    m_redo.clear();
  }
  void pop_front() { m_undo.pop_front(); }
  void clear() {
    m_undo.clear();
    m_redo.clear();
  }

  // The record that redoes the newest undone step; nothing when none.
  bool canRedo() const { return !m_redo.empty(); }
  std::size_t redoSize() const { return m_redo.size(); }
  void pushRedo(std::string record) { m_redo.push_front(std::move(record)); }
  std::optional<std::string> takeRedo() {
    if (m_redo.empty()) return std::nullopt;
    std::string record = std::move(m_redo.front());
    m_redo.pop_front();
    return record;
  }
  // Puts a redone step's inverse back on the undo list without forgetting
  // the steps still to redo.
  void pushRedone(std::string record) { m_undo.push_front(std::move(record)); }

  friend bool operator==(const UndoHistory&, const UndoHistory&) = default;

 private:
  std::deque<std::string> m_undo;
  std::deque<std::string> m_redo;
};

}  // namespace combwise
