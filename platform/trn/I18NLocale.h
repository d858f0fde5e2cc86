#ifndef TRN_I18NLOCALE_H
#define TRN_I18NLOCALE_H

#include <trn/I18NString.h>
#include <trn/TRNExport.h>

/// The name of a locale, kept exactly as given: it goes onto the wire and is never interpreted.
///
/// Threads: a locale may be read by any number of threads at once.
class TRN_API I18NLocale {
 public:
  /// A locale of that name, such as "en-gb"; any text will do, the empty one included.
  explicit I18NLocale(const I18NString& name);

  /// The name exactly as given. Valid as long as the locale.
  const I18NString& getName() const noexcept { return m_name; }

 private:
  I18NString m_name;
};

#endif
