// Scopes the session's commands hold while they run: the busy state, which
// turns the create command off, and the busy pointer.
#pragma once

#include "core/session/gamesession.h"

namespace combwise {

class GameSession::BusyScope {
 public:
  BusyScope(GameSession& session, Busy busy) : m_session(session), m_previous(session.m_busy) { session.setBusy(busy); }
  ~BusyScope() { m_session.setBusy(m_previous); }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  GameSession& m_session;
  Busy m_previous;
};

class GameSession::PointerScope {
 public:
  explicit PointerScope(SessionHost& host) : m_host(host) { m_host.pointerBusy(true); }
  ~PointerScope() { m_host.pointerBusy(false); }
  PointerScope(const PointerScope&) = delete;
  PointerScope& operator=(const PointerScope&) = delete;

 private:
  SessionHost& m_host;
};

}  // namespace combwise
