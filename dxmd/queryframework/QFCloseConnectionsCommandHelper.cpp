#include <dxmd/queryframework/QFCloseConnectionsCommandHelper.h>

#include <dxmd/resources/Vocabulary.h>

QFCloseConnectionsCommandHelper::QFCloseConnectionsCommandHelper() = default;

QFCloseConnectionsCommandHelper::~QFCloseConnectionsCommandHelper() = default;

void QFCloseConnectionsCommandHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  TRNIDOM_Element closeConnections = doc.createElement(STR_closeConnections);
  QFCommandHelper::Incorporate(doc, elem, closeConnections);
}
