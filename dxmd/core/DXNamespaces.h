#ifndef DXMD_CORE_DXNAMESPACES_H
#define DXMD_CORE_DXNAMESPACES_H

#include <trn/I18NString.h>

#include <dxmd/core/Export.h>

/// The namespace URIs that are each deployment's own. They begin as the library was built; a program that serves
/// another deployment sets them once, before it makes messages.
///
/// Threads: any of these may be called from any number of threads at once. A message has the URI that was set when it
/// was made. A URI given out stays valid until the process ends, also after another was set: each that was ever set is
/// kept.
class DXMD_API DXNamespaces {
 public:
  /// The query service's API schema, which commands declare as their default namespace.
  static const I18NString& GetQueryService();

  /// Replaces it.
  static void SetQueryService(const I18NString& uri);

  /// The service bus schema, for which "bus" stands in parameter value items. No helper declares that prefix: this is
  /// for the program that writes the document around the items.
  static const I18NString& GetServiceBus();

  /// Replaces it.
  static void SetServiceBus(const I18NString& uri);
};

#endif
