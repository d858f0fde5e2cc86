#ifndef DXMD_MODELACTIONS_DXACTIONHELPEROBJECTACCESS_H
#define DXMD_MODELACTIONS_DXACTIONHELPEROBJECTACCESS_H

#include <vector>

#include <trn/I18NString.h>
#include <trn/TRNSmartPointer.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/modelactions/DXActionHelperSecurityObject.h>

/// Who may access a model object: the "objectAccess" element, one rule for each principal.
///
/// Written: incrementally. `Make` hands back an empty "objectAccess", the document element of a document of its own,
/// and remembers it; each `addEntry` writes into it. The element stays the caller's to change between calls. Read:
/// lazily. `Take` remembers the element, into which `addEntry` then writes as well; each reader reads it anew. Entries
/// added while nothing was made or taken are held until something is, and then given up for what it holds.
///
/// A helper is used by one thread at a time.
class DXMD_API DXActionHelperObjectAccess : public ActionHandlerBase {
 public:
  /// A rule; of two rules for one principal the larger one holds.
  enum EObjectAccessRule : int {
    kUnspecified = 0,  ///< "unspecified"; also any text that is no rule
    kAllow = 1,        ///< "allow"
    kDeny = 2          ///< "deny"
  };

  /// A principal and its rule. Copies share the principal.
  struct SecurityObjectAccess {
    TRNSmartPointer<DXActionHelperSecurityObject> securityObject;  ///< the principal; never null in what is read
    EObjectAccessRule rule = kUnspecified;                         ///< the text of "rule"
  };

  /// A list without entries, and without an element to write them into.
  DXActionHelperObjectAccess();
  ~DXActionHelperObjectAccess() override;

  /// "allow", "deny", or "unspecified" for any other value.
  static I18NString getObjectAccessRuleStr(const EObjectAccessRule& rule);

  /// The rule of exactly that text; `kUnspecified` for any other.
  static EObjectAccessRule getObjectAccessRule(const I18NString& text);

  /// The rule in the element's child "rule"; `kUnspecified` without one.
  static EObjectAccessRule getObjectAccessRule(TRNIDOM_Element& element);

  /// Gives a principal a rule. A principal without search path is ignored.
  ///
  /// The element last made or taken gets one "securityObject" for each search path: the first call for a path creates
  /// it, a later one leaves it the stronger of its rule and the given one, and everything else as it was. The rule
  /// becomes its last child. The entries held get a copy of the principal with the rule as given.
  void addEntry(const DXActionHelperSecurityObject& object, const EObjectAccessRule& rule);

  /// Appends the entries to the caller's.
  /// @throws TRNAssertError as buildAccessVector().
  void getEntries(std::vector<SecurityObjectAccess>& entries) const;

  /// Whether no entry allows or denies anything.
  /// @throws TRNAssertError as buildAccessVector().
  bool isUnspecifiedForAllEntries() const;

  /// Replaces the entries held by those of the element last made or taken: its first child "securityObject" and every
  /// node that follows it. The readers above call it whenever there is such an element.
  /// @throws TRNAssertError when nothing was made or taken, and for a node that is no principal, white space included;
  ///         the entries before it are held then.
  void buildAccessVector() const;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const override;

  /// @throws TRNAssertError for a null element.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  mutable TRNIDOM_Element m_requestRoot;                // "objectAccess", last made or taken
  mutable std::vector<SecurityObjectAccess> m_entries;  // rebuilt by the readers
};

#endif
