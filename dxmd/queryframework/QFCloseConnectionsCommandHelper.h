#ifndef DXMD_QUERYFRAMEWORK_QFCLOSECONNECTIONSCOMMANDHELPER_H
#define DXMD_QUERYFRAMEWORK_QFCLOSECONNECTIONSCOMMANDHELPER_H

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFCommandHelper.h>

/// The command that closes the service's connections: an empty "closeConnections" in the envelope.
///
/// A helper is used by one thread at a time.
class DXMD_API QFCloseConnectionsCommandHelper : public QFCommandHelper {
 public:
  /// A command with the default identifiers, without a connection.
  QFCloseConnectionsCommandHelper();
  ~QFCloseConnectionsCommandHelper() override;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;
};

#endif
