#ifndef DXMD_QUERYENGINE_VQECANCELQUERYHELPER_H
#define DXMD_QUERYENGINE_VQECANCELQUERYHELPER_H

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFCommandHelper.h>

/// The command that cancels the running request: "cancel", naming the default request, in the envelope. The command
/// goes by identifiers of its own, "DXCancelCommand" and "DXCancelRequest", so that it is not taken for the request
/// it cancels.
///
/// A helper is used by one thread at a time.
class DXMD_API VqeCancelQueryHelper : public QFCommandHelper {
 public:
  /// A command that cancels the default request.
  VqeCancelQueryHelper();
  ~VqeCancelQueryHelper() override;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;
};

#endif
