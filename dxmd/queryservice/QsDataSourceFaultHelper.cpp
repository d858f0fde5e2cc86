#include <dxmd/queryservice/QsDataSourceFaultHelper.h>

#include <utility>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Descendants.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

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
const I18NString STR_searchPath("searchPath");

// The first child of the first descendant of that name, whatever its kind, gives the text.
void readText(const TRNIDOM_Element& fault, const I18NString& name, I18NString& text) {
  const TRNIDOM_Node first = TRNIDOM_Helper::findFirstElement(fault, name).getFirstChild();
  if (!first.isNull()) text = first.getNodeValue();
}

// Appends a record, which the owner of the list then deletes.
template <typename Record>
void adopt(std::vector<Record*>& records, std::unique_ptr<Record> record) {
  records.push_back(record.get());
  static_cast<void>(record.release());
}

template <typename Record>
void deleteAll(const std::vector<Record*>& records) noexcept {
  for (const Record* record : records) delete record;
}

// Indices of the names in what `recordsBelow` gathers.
enum Name { kDataSource, kConnection, kSignon, kName, kType, kSearchPath, kConnectionString };

Descendants recordsBelow(const TRNIDOM_Element& root) {
  return Descendants(
      root, {STR_dataSource, STR_connection, STR_signon, STR_name, STR_type, STR_searchPath, STR_connectionString});
}

// The attribute "value" of the first descendant of that name gives the text.
void readValue(const Descendants& all, const Descendants::Found& parent, Name name, I18NString& text) {
  const TRNIDOM_Element element = all.below(parent, name).first();
  if (!element.isNull()) text = element.getAttribute(STR_value);
}

void readSignon(const Descendants& all, const Descendants::Found& element, SignonInfo& signon) {
  readValue(all, element, kName, signon.name);
  readValue(all, element, kSearchPath, signon.searchPath);
}

void readConnection(const Descendants& all, const Descendants::Found& element, ConnectionInfo& connection) {
  readValue(all, element, kName, connection.name);
  readValue(all, element, kSearchPath, connection.searchPath);
  // Callers look for the connection string where the search path is; it takes precedence.
  readValue(all, element, kConnectionString, connection.searchPath);
  for (const Descendants::Found& signon : all.below(element, kSignon)) {
    auto record = std::make_unique<SignonInfo>();
    readSignon(all, signon, *record);
    adopt(connection.signons, std::move(record));
  }
}

bool readDataSource(const Descendants& all, const Descendants::Found& element, const I18NString& name,
                    DataSourceInfo& info) {
  const TRNIDOM_Element nameElement = all.below(element, kName).first();
  if (nameElement.isNull() || nameElement.getAttribute(STR_value) != name) return false;
  info.name = name;
  readValue(all, element, kType, info.type);
  for (const Descendants::Found& connection : all.below(element, kConnection)) {
    auto record = std::make_unique<ConnectionInfo>();
    readConnection(all, connection, *record);
    adopt(info.connections, std::move(record));
  }
  return true;
}

}  // namespace

QsDataSourceFaultHelper::ConnectionInfo::~ConnectionInfo() {
  deleteAll(signons);
}

ConnectionInfo& QsDataSourceFaultHelper::ConnectionInfo::operator=(ConnectionInfo&& other) noexcept {
  name = std::move(other.name);
  searchPath = std::move(other.searchPath);
  connectionString = std::move(other.connectionString);
  signons.swap(other.signons);
  return *this;
}

QsDataSourceFaultHelper::DataSourceInfo::~DataSourceInfo() {
  deleteAll(connections);
}

DataSourceInfo& QsDataSourceFaultHelper::DataSourceInfo::operator=(DataSourceInfo&& other) noexcept {
  name = std::move(other.name);
  type = std::move(other.type);
  connections.swap(other.connections);
  return *this;
}

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
  const TRNIDOM_Element dataSource = TRNIDOM_Helper::findFirstElement(m_faultElement, STR_faultDataSource);
  if (!dataSource.isNull()) m_faultDataSourceName = dataSource.getAttribute(STR_value);
}

ConnectionInfo* QsDataSourceFaultHelper::GetFaultConnection() {
  if (m_faultConnection) return m_faultConnection.get();
  const TRNIDOM_Element element = TRNIDOM_Helper::findFirstElement(m_faultElement, STR_faultConnection);
  if (element.isNull()) return nullptr;
  auto connection = std::make_unique<ConnectionInfo>();
  const Descendants all = recordsBelow(element);
  readConnection(all, all.root(), *connection);
  m_faultConnection = std::move(connection);  // only once it is complete
  return m_faultConnection.get();
}

SignonInfo* QsDataSourceFaultHelper::GetFaultSignon() {
  if (m_faultSignon) return m_faultSignon.get();
  const TRNIDOM_Element element = TRNIDOM_Helper::findFirstElement(m_faultElement, STR_faultSignon);
  if (element.isNull()) return nullptr;
  auto signon = std::make_unique<SignonInfo>();
  const Descendants all = recordsBelow(element);
  readSignon(all, all.root(), *signon);
  m_faultSignon = std::move(signon);
  return m_faultSignon.get();
}

bool QsDataSourceFaultHelper::GetDataSourceInfo(const I18NString& name, DataSourceInfo& info) const {
  bool lastMatches = false;
  const Descendants all = recordsBelow(m_faultElement);
  for (const Descendants::Found& dataSource : all.below(all.root(), kDataSource))
    lastMatches = readDataSource(all, dataSource, name, info);
  return lastMatches;
}
