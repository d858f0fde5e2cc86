#ifndef DXMD_MODELACTIONS_DXACTIONHELPERDBCONNECTIONS_H
#define DXMD_MODELACTIONS_DXACTIONHELPERDBCONNECTIONS_H

#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>

/// A list of database connections: the "dbConnections" element.
///
/// It holds handles of ready "dbConnection" elements: those that a DXActionHelperDBConnection made and the caller
/// added, or those found in a received element, for the caller to hand to a DXActionHelperDBConnection. A handle keeps
/// its document alive; the elements stay where they are.
///
/// Written: build and hand back, as the document element of a document of its own; each element held is copied.
/// Read: every "dbConnection" at any depth, added to those already held.
///
/// A helper is used by one thread at a time.
class DXMD_API DXActionHelperDBConnections : public ActionHandlerBase {
 public:
  static const I18NString kElemNameRoot;   ///< "dbConnections"
  static const I18NString k_dbConnection;  ///< "dbConnection"

  /// An empty list.
  DXActionHelperDBConnections();
  ~DXActionHelperDBConnections() override;

  /// Adds a "dbConnection" element. Nothing is checked: with a null one `Make` throws TRNIDOM_DOMException.
  void addDom(TRNIDOM_Element& dbConnection);

  /// The elements in the order added or read.
  std::vector<TRNIDOM_Element> getDomVector() const { return m_dbConnections; }

 protected:
  /// @throws TRNAssertError for an empty list; nothing is created then.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const override;

  /// @throws TRNAssertError for a null element.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  std::vector<TRNIDOM_Element> m_dbConnections;
  mutable TRNIDOM_Element m_requestRoot;  // last made or taken
};

#endif
