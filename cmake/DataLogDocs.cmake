# The pages, installed in the same order as they have here, with all that they link to: a page leads
# to the same places in either. installed_docs_link_somewhere follows each link.
set(DATALOG_INSTALL_DOCDIR "${CMAKE_INSTALL_DATADIR}/doc/datalog" CACHE STRING
    "Directory, below the prefix, that the documentation is installed into")

install(FILES README.md CONTRIBUTING.md DESTINATION "${DATALOG_INSTALL_DOCDIR}")
install(DIRECTORY docs examples DESTINATION "${DATALOG_INSTALL_DOCDIR}"
    PATTERN .gitattributes EXCLUDE
    PATTERN make-screenshots EXCLUDE
    PATTERN __pycache__ EXCLUDE)
