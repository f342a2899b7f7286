# The house, told once: the build makes a library of each room out of this list, and the check `frecce` keeps
# every #include within it. Lowest first; arrows only point up this list.
set(AMBRA_STANZE core records archivio print screen ledger suppliers invoices worklist reports forms maintenance
    fatturapa parti)

# The rooms that a room may include.
set(usa_core)
set(usa_records core)
set(usa_archivio core records)
set(usa_print core)
set(usa_screen core records archivio print)
set(usa_ledger ${usa_screen} screen)
set(usa_suppliers ${usa_ledger} ledger)
set(usa_invoices ${usa_suppliers} suppliers)
set(usa_worklist ${usa_ledger})
set(usa_reports ${usa_suppliers})
set(usa_forms ${usa_suppliers})
set(usa_maintenance ${usa_suppliers})
set(usa_fatturapa core invoices)
set(usa_parti ${usa_invoices} invoices maintenance)
set(usa_qt ${AMBRA_STANZE})
list(REMOVE_ITEM usa_qt fatturapa parti)
set(usa_ambra ${AMBRA_STANZE} qt)
set(usa_desktop ${AMBRA_STANZE} qt)
list(REMOVE_ITEM usa_desktop fatturapa)

# The headers that a room may include beside those of the standard library; what only one platform has stands in
# a file that bears its name. A file of the disk is opened by the door of core alone (porta.cmake).
set(esterni_core "filesystem")  # names of paths alone (core/percorso.h)
set(esterni_maintenance "filesystem")  # the dated copies, in the user's own folder
set(esterni_fatturapa "archive(_entry)?\\.h|libdeflate\\.h|openssl/[a-z]+\\.h|pugixml\\.hpp")
set(esterni_qt "Q[A-Za-z]+(/Q[A-Za-z]+)?")
set(esterni_ambra "Q[A-Za-z]+|CLI/CLI\\.hpp|nlohmann/json\\.hpp|archive(_entry)?\\.h|xlsxwriter\\.h")
set(esterni_desktop "Q[A-Za-z]+(/Q[A-Za-z]+)?|nlohmann/json\\.hpp")
