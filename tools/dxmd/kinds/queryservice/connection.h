#ifndef TOOLS_DXMD_KINDS_QUERYSERVICE_CONNECTION_H
#define TOOLS_DXMD_KINDS_QUERYSERVICE_CONNECTION_H

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <tools/dxmd/shape/Shape.h>

// The kind connection, which is also a key of every command.

namespace dxmd_tool {

struct ConnectionModel {
  I18NString name;
  bool bme = false;
};

struct Connection {
  I18NString providerType;
  I18NString nameSpace;
  I18NString username;
  I18NString password;
  I18NString passport;
  I18NString contentManagerURI;
  I18NString modelPath;
  I18NString runLocale;
  I18NString productLocale;
  std::optional<std::uint32_t> sessionID;
  std::map<I18NString, I18NString> properties;
  std::vector<ConnectionModel> models;
  std::optional<bool> retainConnection;
  std::optional<bool> disableAuthentication;
};

void shape(Shape& s, Connection& connection);

TRNIDOM_Element makeConnection(const Connection& connection);
Connection takeConnection(TRNIDOM_Element& root);

}  // namespace dxmd_tool

#endif
