#include "ui/trapped_application.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <cstdio>
#include <new>

#include "base/trap.h"

namespace tessarel {

namespace {

// Whether an event comes by itself, again and again, rather than from somebody's hand.
bool Repeats(QEvent::Type type) {
  return type == QEvent::Paint || type == QEvent::UpdateRequest || type == QEvent::Timer ||
         type == QEvent::MouseMove || type == QEvent::HoverMove;
}

// The class of an object without its namespace.
const char* NameOf(const QObject* object) {
  constexpr std::string_view Own = "tessarel::";
  const char* name = object->metaObject()->className();
  return std::string_view(name).starts_with(Own) ? name + Own.size() : name;
}

}  // namespace

bool TrappedApplication::notify(QObject* receiver, QEvent* event) {
  // Neither may live any more when a fault comes back.
  const char* const place = NameOf(receiver);
  const QEvent::Type type = event->type();
  try {
    return QApplication::notify(receiver, event);
  } catch (const Fault& fault) {
    Report(fault, place, type);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    Report(Fault(FaultNumber::InvalidCall, error.what()), place, type);
  }
  return true;
}

// A fault in what shows the report itself has nobody left to tell it but the standard error.
void TrappedApplication::Report(const Fault& fault, const char* place, QEvent::Type type) {
  const std::string text = FaultText(fault, place);
  if (reporting_) {
    std::fprintf(stderr, "%s\n", text.c_str());
    return;
  }
  if (Repeats(type) && !told_.insert(text).second) return;
  const QScopedValueRollback<bool> guard(reporting_, true);
  ReportFault(fault, place);
  Q_EMIT FaultReported();
}

}  // namespace tessarel
