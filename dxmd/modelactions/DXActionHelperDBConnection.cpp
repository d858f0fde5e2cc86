// Holds both classes: an assertion names its source file, and those of the list name this one.

#include <dxmd/modelactions/DXActionHelperDBConnection.h>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/modelactions/DXActionHelperDBConnections.h>

using namespace dxmd;

const I18NString DXActionHelperDBConnection::k_dbConnection("dbConnection");
const I18NString DXActionHelperDBConnection::k_connectionString("connectionString");
const I18NString DXActionHelperDBConnection::k_database("database");
const I18NString DXActionHelperDBConnection::k_catalog("catalog");
const I18NString DXActionHelperDBConnection::k_schema("schema");
const I18NString DXActionHelperDBConnection::k_dbType("dbType");
const I18NString DXActionHelperDBConnection::k_userName("userName");
const I18NString DXActionHelperDBConnection::k_password("password");

const I18NString DXActionHelperDBConnections::kElemNameRoot("dbConnections");
const I18NString DXActionHelperDBConnections::k_dbConnection("dbConnection");

DXActionHelperDBConnection::DXActionHelperDBConnection() = default;
DXActionHelperDBConnection::~DXActionHelperDBConnection() = default;

void DXActionHelperDBConnection::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const {
  TRN_ASSERT(!m_connectionString.empty() && !m_database.empty());

  // Elements are spelt as the assertions' texts have them. Those that ask for null cannot fail.
  domRequest = doc.createElement(k_dbConnection);
  TRN_ASSERT(!domRequest.isNull());
  doc.appendChild(domRequest);

  const TRNIDOM_Element databaseElem = appendElementWithText(domRequest, k_database, m_database);
  TRN_ASSERT(!databaseElem.isNull());
  if (!m_catalog.empty()) {
    const TRNIDOM_Element catalogElem = appendElementWithText(domRequest, k_catalog, m_catalog);
    TRN_ASSERT(!catalogElem.isNull());
  }
  if (!m_schema.empty()) {
    const TRNIDOM_Element schemaElem = appendElementWithText(domRequest, k_schema, m_schema);
    TRN_ASSERT(!schemaElem.isNull());
  }
  if (!m_dbType.empty()) {
    const TRNIDOM_Element dbTypeElem = appendElementWithText(domRequest, k_dbType, m_dbType);
    TRN_ASSERT(!dbTypeElem.isNull());
  }
  const TRNIDOM_Element connectionStringElem =
      appendElementWithText(domRequest, k_connectionString, m_connectionString);
  TRN_ASSERT(!connectionStringElem.isNull());
  if (!m_userName.empty()) {
    const TRNIDOM_Element userNameElem = appendElementWithText(domRequest, k_userName, m_userName);
    TRN_ASSERT(!userNameElem.isNull());
  }
  if (!m_password.empty()) {
    const TRNIDOM_Element passwordElem = appendElementWithText(domRequest, k_password, m_password);
    TRN_ASSERT(!passwordElem.isNull());
  }

  m_requestRoot = domRequest;
}

void DXActionHelperDBConnection::doTake(TRNIDOM_Element& elem) {
  m_requestRoot = elem;
  TRN_ASSERT(!m_requestRoot.isNull());

  const TRNIDOM_Element connectionStringElem = TRNIDOM_Helper::findChildElement(m_requestRoot, k_connectionString);
  TRN_ASSERT(!connectionStringElem.isNull());
  TRNIDOM_Helper::getElementText(connectionStringElem, m_connectionString);

  const TRNIDOM_Element databaseElem = TRNIDOM_Helper::findChildElement(m_requestRoot, k_database);
  TRN_ASSERT(!databaseElem.isNull());
  TRNIDOM_Helper::getElementText(databaseElem, m_database);

  readChildText(m_requestRoot, k_catalog, m_catalog);
  readChildText(m_requestRoot, k_schema, m_schema);

  const TRNIDOM_Element dbTypeElem = TRNIDOM_Helper::findChildElement(m_requestRoot, k_dbType);
  TRN_ASSERT(!dbTypeElem.isNull());
  TRNIDOM_Helper::getElementText(dbTypeElem, m_dbType);

  readChildText(m_requestRoot, k_userName, m_userName);
  readChildText(m_requestRoot, k_password, m_password);
}

DXActionHelperDBConnections::DXActionHelperDBConnections() = default;
DXActionHelperDBConnections::~DXActionHelperDBConnections() = default;

void DXActionHelperDBConnections::addDom(TRNIDOM_Element& dbConnection) {
  m_dbConnections.push_back(dbConnection);
}

void DXActionHelperDBConnections::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const {
  TRN_ASSERT(!m_dbConnections.empty());

  domRequest = doc.createElement(kElemNameRoot);
  TRN_ASSERT(!domRequest.isNull());
  doc.appendChild(domRequest);

  for (const TRNIDOM_Element& dbConnection : m_dbConnections) appendImported(domRequest, dbConnection);

  m_requestRoot = domRequest;
}

void DXActionHelperDBConnections::doTake(TRNIDOM_Element& elem) {
  m_requestRoot = elem;
  TRN_ASSERT(!m_requestRoot.isNull());

  for (TRNIDOM_Element& dbConnection : DescendantElements(m_requestRoot, k_dbConnection)) addDom(dbConnection);
}
