#ifndef DXMD_MODELACTIONS_DXACTIONHELPERSECURITYOBJECT_H
#define DXMD_MODELACTIONS_DXACTIONHELPERSECURITYOBJECT_H

#include <trn/I18NString.h>
#include <trn/TRNReferenceCount.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>

/// A security principal: a user account, a role or a group. Shared through TRNSmartPointer.
///
/// Threads: pointers to one principal may be used by several threads at once, the principal itself by one that changes
/// it or by several that read it.
class DXMD_API DXActionHelperSecurityObject : public TRNReferenceCount {
 public:
  /// What a principal is, with the text that documents have for it.
  enum EAccessType : int {
    kUser = 0,  ///< "account"
    kRole = 1,  ///< "role"
    kGroup = 2  ///< "group"
  };

  /// A principal whose type text is that of the access type.
  /// @param searchPath    identifies it.
  /// @param readablePath  for people; may be empty.
  /// @param accessType    what it is.
  /// @throws TRNAssertError for a value outside the enumeration.
  DXActionHelperSecurityObject(const I18NString& searchPath, const I18NString& readablePath,
                               const EAccessType& accessType);

  /// A principal with any type text.
  DXActionHelperSecurityObject(const I18NString& searchPath, const I18NString& readablePath,
                               const I18NString& accessType);

  /// A plain number is neither.
  DXActionHelperSecurityObject(const I18NString& searchPath, const I18NString& readablePath, int accessType) = delete;

  /// Reads an "access" element, all from attributes, or a "securityObject" element: the type from its attribute, both
  /// paths from the elements "cmSearchPath" and "displayPath" below it when the former exists, else from attributes.
  /// @throws TRNAssertError for an element of any other name, and for a null one.
  explicit DXActionHelperSecurityObject(TRNIDOM_Element& securityObjectElem);

  /// A principal of its own with the same texts, without references.
  DXActionHelperSecurityObject(const DXActionHelperSecurityObject&) = default;

  /// Copies the texts; who refers to this principal does not change.
  DXActionHelperSecurityObject& operator=(const DXActionHelperSecurityObject&) = default;
  ~DXActionHelperSecurityObject() override;

  /// "account", "role" or "group".
  /// @throws TRNAssertError for a value outside the enumeration.
  static I18NString getAccessTypeStr(const EAccessType& eAccessType);

  I18NString cmSearchPath;  ///< identifies the principal; lists ignore a principal whose search path is empty
  I18NString displayPath;   ///< for people; may be empty
  I18NString type;          ///< "account", "role", "group", or what the received element has
};

#endif
