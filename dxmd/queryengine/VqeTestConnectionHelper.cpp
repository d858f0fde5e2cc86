#include <dxmd/queryengine/VqeTestConnectionHelper.h>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

const I18NString STR_cubePassword("cubePassword");

void setChildValueUnlessEmpty(TRNIDOM_Element& parent, const I18NString& name, const I18NString& value) {
  if (!value.empty()) setChildValue(parent, name, value);
}

}  // namespace

VqeTestConnectionHelper::VqeTestConnectionHelper(const I18NString& dataSourceName, const I18NString& connectionName,
                                                 const I18NString& signonName, const I18NString& userName,
                                                 const I18NString& password, const I18NString& connectionString,
                                                 const I18NString& cubePassword, const I18NString& nameSpace)
    : m_dataSourceName(dataSourceName),
      m_connectionName(connectionName),
      m_signonName(signonName),
      m_userName(userName),
      m_password(password),
      m_connectionString(connectionString),
      m_cubePassword(cubePassword),
      m_namespace(nameSpace) {}

VqeTestConnectionHelper::~VqeTestConnectionHelper() = default;

void VqeTestConnectionHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_command);
  TRNIDOM_Element service = TRNIDOM_Helper::findOrCreateElement(elem, STR_connection);
  setChildValue(service, STR_dataSourceType, STR_QueryFrameworkService);

  TRNIDOM_Element database = TRNIDOM_Helper::findOrCreateElement(service, STR_connection);
  setChildValue(database, STR_dataSource, m_dataSourceName);
  setChildValue(database, STR_dataSourceType, STR_Database);
  setChildValue(database, STR_connectionString, m_connectionString);
  setChildValueUnlessEmpty(database, STR_name, m_connectionName);
  setChildValueUnlessEmpty(database, STR_username, m_userName);
  setChildValueUnlessEmpty(database, STR_password, m_password);
  setChildValueUnlessEmpty(database, STR_cubePassword, m_cubePassword);
  setChildValueUnlessEmpty(database, STR_namespace, m_namespace);
  if (!m_signonName.empty()) {
    TRNIDOM_Element signon = TRNIDOM_Helper::findOrCreateElement(database, STR_signon);
    setChildValue(signon, STR_name, m_signonName);
  }
  TRNIDOM_Helper::findOrCreateElement(elem, STR_testConnection);
}
