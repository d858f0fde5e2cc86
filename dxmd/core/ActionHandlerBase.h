#ifndef DXMD_CORE_ACTIONHANDLERBASE_H
#define DXMD_CORE_ACTIONHANDLERBASE_H

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>

/// Root of every helper: `Make` writes the helper's XML, `Take` reads a received element into it.
///
/// Neither catches anything: a DOM exception, a TRNAssertError and std::bad_alloc reach the caller. The helper then
/// keeps what it had stored before the failure.
///
/// Threads: a helper is used by one thread at a time; different helpers by different threads at once.
class DXMD_API ActionHandlerBase {
 public:
  /// Holds nothing.
  ActionHandlerBase() = default;
  virtual ~ActionHandlerBase();

  ActionHandlerBase(const ActionHandlerBase&) = delete;
  ActionHandlerBase& operator=(const ActionHandlerBase&) = delete;

  /// Writes the helper's XML, from what it holds. Most helpers hand back a new element, which belongs to a document of
  /// its own named "requestDoc", by assigning it to `elem`; each helper says whether it does.
  void Make(TRNIDOM_Element& elem) const;

  /// Reads a received element. Each helper says what it needs, what it keeps and when it parses.
  void Take(TRNIDOM_Element& elem);

 protected:
  /// Writes the helper's XML: what `Make` calls. By default writes nothing.
  /// @param doc   a document of its own, named "requestDoc", in which new elements are created.
  /// @param elem  the caller's handle, through which the new element is handed back.
  virtual void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const;

  /// Reads a received element: what `Take` calls. By default reads nothing.
  virtual void doTake(TRNIDOM_Element& elem);
};

#endif
