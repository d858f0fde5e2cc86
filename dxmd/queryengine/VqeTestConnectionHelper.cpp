#include <dxmd/queryengine/VqeTestConnectionHelper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

const I18NString STR_cubePassword("cubePassword");

void appendValueUnlessEmpty(const TRNIDOM_Element& parent, const I18NString& name, const I18NString& value) {
  if (!value.empty()) appendValueElement(parent, name, value);
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
  const TRNIDOM_Element service = appendElement(elem, STR_connection);
  appendValueElement(service, STR_dataSourceType, STR_QueryFrameworkService);

  const TRNIDOM_Element database = appendElement(service, STR_connection);
  appendValueElement(database, STR_dataSource, m_dataSourceName);
  appendValueElement(database, STR_dataSourceType, STR_Database);
  appendValueElement(database, STR_connectionString, m_connectionString);
  appendValueUnlessEmpty(database, STR_name, m_connectionName);
  appendValueUnlessEmpty(database, STR_username, m_userName);
  appendValueUnlessEmpty(database, STR_password, m_password);
  appendValueUnlessEmpty(database, STR_cubePassword, m_cubePassword);
  appendValueUnlessEmpty(database, STR_namespace, m_namespace);
  if (!m_signonName.empty()) appendValueElement(appendElement(database, STR_signon), STR_name, m_signonName);
  appendElement(elem, STR_testConnection);
}
