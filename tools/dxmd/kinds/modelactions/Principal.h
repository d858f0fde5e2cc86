#ifndef TOOLS_DXMD_KINDS_MODELACTIONS_PRINCIPAL_H
#define TOOLS_DXMD_KINDS_MODELACTIONS_PRINCIPAL_H

#include <dxmd/modelactions/DXActionHelperSecurityObject.h>
#include <tools/dxmd/shape/Shape.h>

// What the kinds objectAccess and securityObjects say of a user, role or group.

namespace dxmd_tool {

struct Principal {
  I18NString cmSearchPath;
  I18NString displayPath;
  I18NString type;
};

/// Adds the principal's keys.
inline void shapePrincipal(Shape& s, Principal& principal) {
  s.required("cmSearchPath", principal.cmSearchPath, "Where the content manager finds the user, role or group",
             nonEmpty());
  s.optional("displayPath", principal.displayPath, "Its path for people");
  s.optional("type", principal.type, "What it is: \"account\", \"role\", \"group\" or any other text");
}

inline DXActionHelperSecurityObject securityObjectOf(const Principal& principal) {
  return {principal.cmSearchPath, principal.displayPath, principal.type};
}

inline Principal principalOf(const DXActionHelperSecurityObject& object) {
  return {object.cmSearchPath, object.displayPath, object.type};
}

}  // namespace dxmd_tool

#endif
