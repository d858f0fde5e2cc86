#include <dxmd/queryservice/QsDataSourceFaultHelper.h>

#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>

namespace {

using ConnectionInfo = QsDataSourceFaultHelper::ConnectionInfo;
using DataSourceInfo = QsDataSourceFaultHelper::DataSourceInfo;
using SignonInfo = QsDataSourceFaultHelper::SignonInfo;

const I18NString STR_faultcode("faultcode");
const I18NString STR_faultSubcode("faultSubcode");
const I18NString STR_faultstring("faultstring");
const I18NString STR_faultSubstring("faultSubstring");
const I18NString STR_faultDataSource("faultDataSource");
const I18NString STR_faultConnection("faultConnection");
const I18NString STR_faultSignon("faultSignon");
const I18NString STR_dataSource("dataSource");
const I18NString STR_connection("connection");
const I18NString STR_signon("signon");
const I18NString STR_name("name");
const I18NString STR_type("type");
const I18NString STR_searchPath("searchPath");
const I18NString STR_connectionString("connectionString");
const I18NString STR_value("value");

// The first child of the first descendant of that name, whatever its kind, gives the text.
void readText(const TRNIDOM_Element& fault, const I18NString& name, I18NString& text) {
  const TRNIDOM_Node first = TRNIDOM_Helper::findFirstElement(fault, name).getFirstChild();
  if (!first.isNull()) text = first.getNodeValue();
}

// The attribute "value" of the first descendant of that name gives the text.
bool readValue(const TRNIDOM_Element& parent, const I18NString& name, I18NString& text) {
  const TRNIDOM_Element element = TRNIDOM_Helper::findFirstElement(parent, name);
  if (element.isNull()) return false;
  text = element.getAttribute(STR_value);
  return true;
}

void readSignon(const TRNIDOM_Element& element, SignonInfo& signon) {
  readValue(element, STR_name, signon.name);
  readValue(element, STR_searchPath, signon.searchPath);
}

void readConnection(const TRNIDOM_Element& element, ConnectionInfo& connection) {
  readValue(element, STR_name, connection.name);
  readValue(element, STR_searchPath, connection.searchPath);
  // Callers look for the connection string where the search path is; it takes precedence.
  readValue(element, STR_connectionString, connection.searchPath);
  for (const TRNIDOM_Element signon : element.getElementsByTagName(STR_signon))
    readSignon(signon, *connection.signons.emplace());
}

bool readDataSource(const TRNIDOM_Element& element, const I18NString& name, DataSourceInfo& info) {
  I18NString found;
  if (!readValue(element, STR_name, found) || found != name) return false;
  info.name = found;
  readValue(element, STR_type, info.type);
  for (const TRNIDOM_Element connection : element.getElementsByTagName(STR_connection))
    readConnection(connection, *info.connections.emplace());
  return true;
}

}  // namespace

ConnectionInfo* QsDataSourceFaultHelper::DataSourceInfo::GetConnectionInfo(const I18NString& connectionName) const {
  ConnectionInfo* connection = nullptr;
  for (ConnectionInfo* candidate : connections) {
    connection = candidate;
    if (connection->name == connectionName) break;
  }
  return connection;
}

QsDataSourceFaultHelper::QsDataSourceFaultHelper() = default;

QsDataSourceFaultHelper::~QsDataSourceFaultHelper() = default;

void QsDataSourceFaultHelper::Cleanup() {
  m_faultConnection.reset();
  m_faultSignon.reset();
}

void QsDataSourceFaultHelper::doTake(TRNIDOM_Element& elem) {
  Cleanup();
  m_faultElement = elem;
  readText(m_faultElement, STR_faultcode, m_faultCode);
  readText(m_faultElement, STR_faultSubcode, m_faultSubCode);
  readText(m_faultElement, STR_faultstring, m_faultString);
  readText(m_faultElement, STR_faultSubstring, m_faultSubString);
  readValue(m_faultElement, STR_faultDataSource, m_faultDataSourceName);
}

ConnectionInfo* QsDataSourceFaultHelper::GetFaultConnection() {
  if (m_faultConnection) return m_faultConnection.get();
  const TRNIDOM_Element element = TRNIDOM_Helper::findFirstElement(m_faultElement, STR_faultConnection);
  if (element.isNull()) return nullptr;
  m_faultConnection = std::make_unique<ConnectionInfo>();
  readConnection(element, *m_faultConnection);
  return m_faultConnection.get();
}

SignonInfo* QsDataSourceFaultHelper::GetFaultSignon() {
  if (m_faultSignon) return m_faultSignon.get();
  const TRNIDOM_Element element = TRNIDOM_Helper::findFirstElement(m_faultElement, STR_faultSignon);
  if (element.isNull()) return nullptr;
  m_faultSignon = std::make_unique<SignonInfo>();
  readSignon(element, *m_faultSignon);
  return m_faultSignon.get();
}

bool QsDataSourceFaultHelper::GetDataSourceInfo(const I18NString& name, DataSourceInfo& info) const {
  bool lastMatches = false;
  for (const TRNIDOM_Element dataSource : m_faultElement.getElementsByTagName(STR_dataSource))
    lastMatches = readDataSource(dataSource, name, info);
  return lastMatches;
}
