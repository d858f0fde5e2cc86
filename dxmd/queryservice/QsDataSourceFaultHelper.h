#ifndef DXMD_QUERYSERVICE_QSDATASOURCEFAULTHELPER_H
#define DXMD_QUERYSERVICE_QSDATASOURCEFAULTHELPER_H

#include <memory>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>

/// Reads a fault that the query service reports about a data source: its codes and texts, the connection and sign-on at
/// fault, and the descriptions of data sources.
///
/// Read: `Take` reads the codes and texts and keeps a handle to the fault, from which the other getters read on demand.
/// What a fault lacks is not an error. Nothing is written. A helper is used by one thread at a time.
class DXMD_API QsDataSourceFaultHelper : public ActionHandlerBase {
 public:
  /// A sign-on of a connection.
  struct DXMD_API SignonInfo {
    I18NString name;        ///< "value" of the first "name" below; empty without one
    I18NString searchPath;  ///< "value" of the first "searchPath" below; empty without one
  };

  /// A connection of a data source. It owns its sign-ons, each made with `new`, and deletes them.
  struct DXMD_API ConnectionInfo {
    /// An empty record.
    ConnectionInfo() = default;

    /// Takes over the texts and sign-ons.
    ConnectionInfo(ConnectionInfo&&) = default;

    /// Takes over the texts and swaps the sign-ons.
    ConnectionInfo& operator=(ConnectionInfo&& other) noexcept;
    ~ConnectionInfo();

    I18NString name;                   ///< "value" of the first "name" below; empty without one
    I18NString searchPath;             ///< the connection string where the fault gives one, else the search path
    I18NString connectionString;       ///< never read from a fault
    std::vector<SignonInfo*> signons;  ///< of each "signon" below, in document order; owned by this record
  };

  /// A data source. It owns its connections, each made with `new`, and deletes them.
  struct DXMD_API DataSourceInfo {
    /// An empty record.
    DataSourceInfo() = default;

    /// Takes over the texts and connections.
    DataSourceInfo(DataSourceInfo&&) = default;

    /// Takes over the texts and swaps the connections.
    DataSourceInfo& operator=(DataSourceInfo&& other) noexcept;
    ~DataSourceInfo();

    I18NString name;                           ///< the name that was asked for, once a data source has it
    I18NString type;                           ///< "value" of the first "type" below
    std::vector<ConnectionInfo*> connections;  ///< of each "connection" below, in document order; owned by this record

    /// The first connection of that name; the last of all when none has it, null when there are none. The record keeps
    /// owning it.
    ConnectionInfo* GetConnectionInfo(const I18NString& connectionName) const;
  };

  /// A fault without anything until one is taken.
  QsDataSourceFaultHelper();
  ~QsDataSourceFaultHelper() override;

  // Each of these texts is valid as long as the helper, and changes with the next `Take`.

  /// The text of the first "faultcode"; where the fault has none, that of the fault before it, at first empty.
  const I18NString& GetFaultCode() const { return m_faultCode; }

  /// The text of the first "faultSubcode", in the same way.
  const I18NString& GetFaultSubCode() const { return m_faultSubCode; }

  /// The text of the first "faultstring", for people, in the same way.
  const I18NString& GetFaultString() const { return m_faultString; }

  /// The text of the first "faultSubstring", for people, in the same way.
  const I18NString& GetFaultSubString() const { return m_faultSubString; }

  /// The attribute "value" of the first "faultDataSource", in the same way.
  const I18NString& GetFaultDataSourceName() const { return m_faultDataSourceName; }

  /// The connection at fault, from the first "faultConnection"; null without one. Read at the first call, owned by the
  /// helper, valid until the next `Take` or `Cleanup`.
  ConnectionInfo* GetFaultConnection();

  /// The sign-on at fault, from the first "faultSignon", in the same way.
  SignonInfo* GetFaultSignon();

  /// Fills in the description of the data sources of that name; connections are added to those that `info` has.
  /// @return whether the last data source of the fault, whatever its name, has that name. When an earlier one has,
  ///         `info` is filled all the same, which its name tells.
  bool GetDataSourceInfo(const I18NString& name, DataSourceInfo& info) const;

  /// Deletes the connection and the sign-on at fault; the next call reads them again.
  void Cleanup();

 protected:
  /// Reads the five texts and forgets the connection and sign-on of the fault before. A null element has none.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  I18NString m_faultCode;
  I18NString m_faultSubCode;
  I18NString m_faultString;
  I18NString m_faultSubString;
  I18NString m_faultDataSourceName;
  TRNIDOM_Element m_faultElement;
  std::unique_ptr<ConnectionInfo> m_faultConnection;
  std::unique_ptr<SignonInfo> m_faultSignon;
};

#endif
