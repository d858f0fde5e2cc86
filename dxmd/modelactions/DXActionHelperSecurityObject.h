#ifndef DXMD_MODELACTIONS_DXACTIONHELPERSECURITYOBJECT_H
#define DXMD_MODELACTIONS_DXACTIONHELPERSECURITYOBJECT_H

#include <trn/I18NString.h>
#include <trn/TRNReferenceCount.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>

/// A security principal: a user account, a role or a group. Shared through TRNSmartPointer.
class DXMD_API DXActionHelperSecurityObject : public TRNReferenceCount {
 public:
  enum EAccessType : int { kUser = 0, kRole = 1, kGroup = 2 };

  /// A principal whose type text is that of the access type.
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

  DXActionHelperSecurityObject(const DXActionHelperSecurityObject&) = default;
  DXActionHelperSecurityObject& operator=(const DXActionHelperSecurityObject&) = default;
  ~DXActionHelperSecurityObject() override;

  /// "account", "role" or "group".
  /// @throws TRNAssertError for a value outside the enumeration.
  static I18NString getAccessTypeStr(const EAccessType& eAccessType);

  I18NString cmSearchPath;  ///< identifies the principal; lists ignore a principal whose search path is empty
  I18NString displayPath;   ///< for people; may be empty
  I18NString type;          ///< access type
};

#endif
