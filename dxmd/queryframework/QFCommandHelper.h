#ifndef DXMD_QUERYFRAMEWORK_QFCOMMANDHELPER_H
#define DXMD_QUERYFRAMEWORK_QFCOMMANDHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>

/// Base of every command to the query framework service: the "command" envelope and what all commands share.
///
/// Written: build and hand back. The envelope declares the query service's namespace (see DXNamespaces) and holds the
/// connection, when one was set, then the command proper, then "commandID" and "requestID". Nothing is read. `Make`
/// leaves the helper unchanged and may be called again. A helper is used by one thread at a time.
class DXMD_API QFCommandHelper : public ActionHandlerBase {
 public:
  /// The identifiers of a command.
  enum EProperty : int {
    kPropertyCommandID = 1,  ///< "commandID": which command this is
    kPropertyRequestID = 2   ///< "requestID": which request it belongs to, so that it can be cancelled
  };

  /// A command without a model path.
  QFCommandHelper();

  /// A command on the model at that path, with the default identifiers and without a connection.
  explicit QFCommandHelper(const I18NString& modelPath);
  ~QFCommandHelper() override;

  /// Replaces an identifier, which is written also when empty; any other property is ignored.
  void SetProperty(EProperty property, const I18NString& value);

  /// The "commandID" of a command that sets none: "DXCommand".
  static const I18NString& GetDefaultDXCommandID();

  /// The "requestID" of a command that sets none: "DXRequest".
  static const I18NString& GetDefaultDXRequestID();

  /// The model path given at construction; empty without one. Valid as long as the command.
  const I18NString& GetModelPath() const { return m_modelPath; }

  /// Keeps a handle to a "connection" element, such as a QsApiConnectHelper makes, which is copied into the envelope at
  /// each `Make`. A null one clears it.
  void SetConnection(TRNIDOM_Element& connection);

  /// Places a copy of a connection into a "command" element that is already built: as its first child, or in place of
  /// the connection it has. In a connection test the connection inside is the one replaced. A command that executes
  /// on metadata has its new connection rewritten: the type becomes "MQP", the data source the inner connection's name.
  /// @throws TRNIDOM_DOMException when either element is null; `NOT_FOUND_ERR` when the old connection is no child of
  /// the
  ///         command; in a connection test `HIERARCHY_REQUEST_ERR` when the new connection has no inner one, and
  ///         `NOT_FOUND_ERR` when the old one has none.
  static void AddConnection(TRNIDOM_Element& command, TRNIDOM_Element& connection);

  /// Finds or creates the child "modelPath" of the parent that holds the model path.
  void MakeModelPath(TRNIDOM_Element& parent) const;

  /// Finds or creates the child "reportName" of the parent that holds the name; "default" stands for "DXRequest".
  void MakeReportName(TRNIDOM_Element& parent, const I18NString& name) const;

  /// Builds the envelope around the command proper and hands it back: what every command's `doMake` ends with.
  /// @param doc    where the envelope is created.
  /// @param out    refers to the envelope, "command", afterwards.
  /// @param inner  the command proper, which must belong to `doc`; it is moved into the envelope.
  /// @throws TRNIDOM_DOMException when the command proper is null or of another document.
  virtual void Incorporate(TRNIDOM_Document& doc, TRNIDOM_Element& out, TRNIDOM_Element& inner) const;

 private:
  I18NString m_modelPath;
  I18NString m_commandID;
  I18NString m_requestID;
  TRNIDOM_Element m_connection;
};

#endif
