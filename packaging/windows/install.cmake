# What a folder with the program needs on Windows: all of it lies beside the program, so that the folder
# can be carried anywhere.

install(TARGETS loftwing_console RUNTIME DESTINATION .)
# The pictures of the help were made where the windows can be shown.
install(DIRECTORY ${LOFTWING_NATIVE}/help DESTINATION . PATTERN pictures-made EXCLUDE)

# The toolkit with its plugins, its words, and where it finds both.
foreach(library Core Gui Widgets PrintSupport)
  install(FILES $<TARGET_FILE:Qt6::${library}> DESTINATION .)
endforeach()
install(FILES $<TARGET_FILE:Qt6::QWindowsIntegrationPlugin> DESTINATION platforms)
install(FILES $<TARGET_FILE:Qt6::QWindowsVistaStylePlugin> DESTINATION styles)
foreach(language de es fr)
  install(FILES ${QT_HOST_PATH}/share/qt6/translations/qtbase_${language}.qm
    DESTINATION translations)
endforeach()
install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/windows/qt.conf DESTINATION .)

# What the compiler's code stands on.
foreach(library libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}.dll
    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${file} DESTINATION .)
endforeach()
