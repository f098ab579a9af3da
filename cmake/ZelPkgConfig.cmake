# zel_write_pkgconfig(file): writes the pkg-config module. All folders in it are relative to the file itself, so that a
# copy that is moved to another place still works, however deep the folder of the libraries lies below the prefix, as
# in lib/x86_64-linux-gnu. A folder outside the prefix stays absolute. So does a copy in /usr, which nobody moves:
# pkg-config leaves out the folders that every compiler searches by itself only where they are named plainly.
function(zel_write_pkgconfig file)
  foreach(kind LIBDIR INCLUDEDIR DATADIR)
    if(IS_ABSOLUTE "${CMAKE_INSTALL_${kind}}")
      set(ZEL_PC_${kind} ${CMAKE_INSTALL_${kind}})
    else()
      set(ZEL_PC_${kind} "\${prefix}/${CMAKE_INSTALL_${kind}}")
    endif()
  endforeach()
  if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(ZEL_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
  else()
    # Any prefix will do: only the way up from the module's own folder counts.
    file(RELATIVE_PATH up /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
    string(REGEX REPLACE "/$" "" up ${up})
    set(ZEL_PC_PREFIX "\${pcfiledir}/${up}")
  endif()
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/ZelCommonView.pc.in ${file} @ONLY)
endfunction()
