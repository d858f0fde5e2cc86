#include <dxmd/queryframework/QFCommandHelper.h>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

const I18NString kSchemaInstanceNamespace("http://www.w3.org/2001/XMLSchema-instance");

const I18NString STR_xmlns_xsi("xmlns:xsi");
const I18NString STR_reportName("reportName");

// Rewrites the connection of a command that executes on metadata: type "MQP", data source named after the inner one.
void rewriteForMetadata(TRNIDOM_Element& connection) {
  const TRNIDOM_Element inner = TRNIDOM_Helper::findFirstElement(connection, STR_connection);
  const I18NString name = TRNIDOM_Helper::findFirstElement(inner, STR_name).getAttribute(STR_value);
  TRNIDOM_Element type = TRNIDOM_Helper::findChildElement(connection, STR_dataSourceType);
  if (type.isNull()) return;
  type.setAttribute(STR_value, STR_MQP);
  setChildValue(connection, STR_dataSource, name);
}

}  // namespace

QFCommandHelper::QFCommandHelper() : QFCommandHelper(I18NString()) {}

QFCommandHelper::QFCommandHelper(const I18NString& modelPath)
    : m_modelPath(modelPath), m_commandID(STR_DXCommand), m_requestID(STR_DXRequest) {}

QFCommandHelper::~QFCommandHelper() = default;

void QFCommandHelper::SetProperty(EProperty property, const I18NString& value) {
  if (property == kPropertyCommandID) m_commandID = value;
  if (property == kPropertyRequestID) m_requestID = value;
}

const I18NString& QFCommandHelper::GetDefaultDXCommandID() {
  return STR_DXCommand;
}

const I18NString& QFCommandHelper::GetDefaultDXRequestID() {
  return STR_DXRequest;
}

void QFCommandHelper::SetConnection(TRNIDOM_Element& connection) {
  m_connection = connection;
}

void QFCommandHelper::AddConnection(TRNIDOM_Element& command, TRNIDOM_Element& connection) {
  TRNIDOM_Element newConnection = command.getOwnerDocument().importNode(connection, true);
  TRNIDOM_Element oldConnection = TRNIDOM_Helper::findFirstElement(command, STR_connection);
  if (oldConnection.isNull()) {
    command.insertBefore(newConnection, command.getFirstChild());
  } else if (TRNIDOM_Helper::findFirstElement(command, STR_testConnection).isNull()) {
    command.replaceChild(newConnection, oldConnection);
  } else {
    oldConnection.replaceChild(TRNIDOM_Helper::findFirstElement(newConnection, STR_connection),
                               TRNIDOM_Helper::findFirstElement(oldConnection, STR_connection));
  }
  const TRNIDOM_Element execute = TRNIDOM_Helper::findChildElement(command, STR_execute);
  if (!TRNIDOM_Helper::findChildElement(execute, STR_Metadata).isNull()) rewriteForMetadata(newConnection);
}

void QFCommandHelper::MakeModelPath(TRNIDOM_Element& parent) const {
  TRNIDOM_Helper::findOrCreateElementWithText(parent, STR_modelPath, m_modelPath);
}

void QFCommandHelper::MakeReportName(TRNIDOM_Element& parent, const I18NString& name) const {
  // The default report of a request is named after the default request.
  const I18NString& text = name == STR_default ? STR_DXRequest : name;
  TRNIDOM_Helper::findOrCreateElementWithText(parent, STR_reportName, text);
}

void QFCommandHelper::Incorporate(TRNIDOM_Document& doc, TRNIDOM_Element& out, TRNIDOM_Element& inner) const {
  out = doc.createElement(STR_command);
  out.setAttribute(STR_xmlns, DXNamespaces::GetQueryService());
  out.setAttribute(STR_xmlns_xsi, kSchemaInstanceNamespace);
  if (!m_connection.isNull()) appendImported(out, m_connection);
  out.appendChild(inner);
  appendValueElement(out, STR_commandID, m_commandID);
  appendValueElement(out, STR_requestID, m_requestID);
}
