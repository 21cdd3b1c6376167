# The library's sources, one list per subsystem directory; a new class adds its line here.
set(NUMBERING_SOURCES)
function(numbering_sources directory)
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/src/${directory}/)
  set(NUMBERING_SOURCES ${NUMBERING_SOURCES} ${ARGN} PARENT_SCOPE)
endfunction()

numbering_sources(foundation
  HostFallbacks.cpp
  KesClid.cpp
  KesEnumOrigin.cpp
  KesUnsupportedCountryException.cpp
  Logger.cpp
  TypesafeEnum.cpp
  Version.cpp)

numbering_sources(lifecycle
  Generation.cpp)

numbering_sources(config
  KesCountryRuleItem.cpp
  KesDialRulesItem.cpp
  KesNumberingConfig.cpp
  KesSiteFile.cpp
  PropertyFiles.cpp
  PropertyRules.cpp)

numbering_sources(rules
  CallerLineIdentity.cpp
  CanonicalDecomposition.cpp
  CanonicalFormatting.cpp
  CanonicalNumber.cpp
  DialableNumber.cpp
  GsmCanonicalNumber.cpp
  KesConfigurationWatcher.cpp
  KesExplanation.cpp
  KesNumberingRules.cpp
  PhoneNumber.cpp)

numbering_sources(dialable
  KesDialable.cpp
  KesDialableFactory.cpp
  KesDialableManager.cpp
  KesDialable_52.cpp
  KesDialable_54.cpp
  KesDialable_57.cpp
  KesDialable_61.cpp
  KesDialable_7.cpp)

numbering_sources(cnp
  ConfigurationFiles.cpp
  FixedLengthPlan.cpp
  KesAreaCodePlan.cpp
  KesAreaCodeTree.cpp
  KesCharsTree.cpp
  KesCharsTreeElement.cpp
  KesCNP.cpp
  KesCNP_1.cpp
  KesCNP_31.cpp
  KesCNP_32.cpp
  KesCNP_33.cpp
  KesCNP_353.cpp
  KesCNP_41.cpp
  KesCNP_43.cpp
  KesCNP_44.cpp
  KesCNP_49.cpp
  KesCNP_52.cpp
  KesCNP_54.cpp
  KesCNP_57.cpp
  KesCNP_61.cpp
  KesCNP_64.cpp
  KesCNP_7.cpp
  KesCNPFactory.cpp
  KesCNPManager.cpp
  KesCNPRegistry.cpp
  OnePassConversion.cpp
  PlanSelfTest.cpp
  TwoPassConversion.cpp)

numbering_sources(check
  AreaCodeFilesCheck.cpp
  CheckedFile.cpp
  DialingRulesCheck.cpp
  KesConfigurationCheck.cpp
  KesConfigurationRejected.cpp
  MasksAndSwitchesCheck.cpp
  PropertyReading.cpp
  RepeatedFindings.cpp
  TextEncoding.cpp)
