#ifndef DXMD_MODELACTIONS_DXACTIONHELPERSECURITYOBJECTSPEC_H
#define DXMD_MODELACTIONS_DXACTIONHELPERSECURITYOBJECTSPEC_H

#include <vector>

#include <trn/I18NString.h>
#include <trn/TRNSmartPointer.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/modelactions/DXActionHelperSecurityObject.h>

/// The views that security principals are bound to: the "securityObjects" element.
///
/// Written: incrementally. `Make` hands back an empty "securityObjects", the document element of a document of its own,
/// and remembers it; each `addEntry` writes into it.
/// Read: lazily. `Take` remembers the element, into which `addEntry` then writes as well; each `getEntry` reads the
/// next principal.
///
/// A helper is used by one thread at a time.
class DXMD_API DXActionHelperSecurityObjectSpec : public ActionHandlerBase {
 public:
  static const I18NString kElemNameRoot;        ///< "securityObjects"
  static const I18NString kElemNameView;        ///< "view"
  static const I18NString kElemNameViewRef;     ///< "viewref"
  static const I18NString kElemNamePackageRef;  ///< "packageref"

  /// A view by its reference, and the packages of the view by theirs. No reference is ever empty.
  class DXMD_API ViewInfo {
   public:
    /// A view without packages.
    /// @throws TRNAssertError for an empty reference.
    explicit ViewInfo(const I18NString& viewRef);

    /// Reads a "view" element: its reference from the first "viewref" below it, and as package references the texts of
    /// the "view" elements below it. Its "packageref" elements, which is what `addEntry` writes, are not read.
    /// @throws TRNAssertError for a null element, one without "viewref", and an empty reference.
    explicit ViewInfo(TRNIDOM_Element& viewElem);

    /// Appends the reference of a package; duplicates are kept.
    /// @throws TRNAssertError for an empty reference.
    void addPackageRef(const I18NString& packageRef);

    /// The view's reference.
    I18NString getViewRef() const { return m_viewRef; }

    /// Appends the package references, in order, to the caller's.
    void getPackageRefs(std::vector<I18NString>& packageRefs) const;

   private:
    I18NString m_viewRef;
    std::vector<I18NString> m_packageRefs;
  };

  /// A helper without an element: `Make` or `Take` comes first.
  DXActionHelperSecurityObjectSpec();
  ~DXActionHelperSecurityObjectSpec() override;

  /// Appends a principal with its views to the element last made or taken. A principal without search path is ignored;
  /// one added twice is written twice; equal package references of one view are written once.
  /// @throws TRNAssertError when nothing was made or taken before.
  void addEntry(const DXActionHelperSecurityObject& object, const std::vector<ViewInfo>& views);

  /// The next principal of the element last taken, or null when there is none; its views, at any depth, are appended to
  /// the caller's. Each view carries the texts of those nested in it, so that what nested views take grows with the
  /// square of their depth.
  /// @throws TRNAssertError for a principal or view that cannot be read, and when what follows the principal is no
  ///         "securityObject", white space included.
  TRNSmartPointer<DXActionHelperSecurityObject> getEntry(std::vector<ViewInfo>& views);

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const override;

  /// Starts reading at the first principal at any depth. A null element leaves the place of reading as it was.
  /// @throws TRNAssertError when that principal's parent is no "securityObjects".
  void doTake(TRNIDOM_Element& elem) override;

 private:
  mutable TRNIDOM_Element m_requestRoot;        // "securityObjects", last made or taken
  TRNIDOM_Element m_currentSecurityObjectElem;  // what `getEntry` reads next
};

#endif
