#ifndef TRN_I18NLOCALE_H
#define TRN_I18NLOCALE_H

#include <trn/I18NString.h>

/// The name of a locale.
class I18NLocale {
 public:
  /// A locale of that name, which is not interpreted.
  explicit I18NLocale(const I18NString& name);

  /// The name exactly as given: it goes onto the wire.
  const I18NString& getName() const;
};

#endif
