; An installer in the look that most of them have, for the tests: it installs nothing and writes no
; file of its own.
;
;   makensis -INPUTCHARSET UTF8 -DTARGET=x86-unicode -DOUTPUT=… -DLICENCE=… installer.nsi
;
; /page=welcome, licence, components, folder, choices or log opens it at that page.
Target "${TARGET}"
Unicode true
RequestExecutionLevel user
ManifestDPIAware true
SetCompress off
CRCCheck off

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include nsDialogs.nsh

Name "試験用インストーラー"
OutFile "${OUTPUT}"
InstallDir "C:\試験\インストール先 フォルダ"
ShowInstDetails show
AutoCloseWindow false
SpaceTexts none
!define MUI_HEADERIMAGE
!define MUI_LICENSEPAGE_CHECKBOX

Var wanted
Var opened

; A page that is skipped unless it is the wanted one or comes later.
!macro PAGE NAME KIND
  !define MUI_PAGE_CUSTOMFUNCTION_PRE Before${NAME}
  !insertmacro MUI_PAGE_${KIND}
!macroend
!macro BEFORE NAME
  Function Before${NAME}
    ${If} $opened == ""
    ${AndIf} $wanted != "${NAME}"
      Abort
    ${EndIf}
    StrCpy $opened yes
  FunctionEnd
!macroend

!insertmacro PAGE welcome WELCOME
!define MUI_PAGE_CUSTOMFUNCTION_PRE Beforelicence
!insertmacro MUI_PAGE_LICENSE "${LICENCE}"
!insertmacro PAGE components COMPONENTS
!insertmacro PAGE folder DIRECTORY
Page custom ShowChoices
!insertmacro PAGE log INSTFILES
!insertmacro MUI_LANGUAGE Japanese

!insertmacro BEFORE welcome
!insertmacro BEFORE licence
!insertmacro BEFORE components
!insertmacro BEFORE folder
!insertmacro BEFORE log

Function .onInit
  ${GetParameters} $0
  ${GetOptions} $0 "/page=" $wanted
  ${If} $wanted == ""
    StrCpy $opened yes
  ${EndIf}
FunctionEnd

; The kinds of control that the other pages do not have.
Function ShowChoices
  ${If} $opened == ""
  ${AndIf} $wanted != "choices"
    Abort
  ${EndIf}
  StrCpy $opened yes
  !insertmacro MUI_HEADER_TEXT "起動方法" "起動する場所を選んでください。"
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateGroupBox} 0 0 100% 62u "起動方法"
  Pop $0
  ${NSD_CreateRadioButton} 8u 12u 120u 12u "スタートメニュー(&S)"
  Pop $0
  ${NSD_CreateCheckBox} 8u 28u 120u 12u "デスクトップ && タスクバー"
  Pop $0
  ${NSD_CreateDropList} 140u 12u 120u 80u ""
  Pop $1
  ${NSD_CreateComboBox} 140u 28u 120u 80u "書き換えられる選択肢"
  Pop $2
  ${NSD_CreateListBox} 140u 66u 120u 60u ""
  Pop $3
  ${ForEach} $4 1 40 + 1
    ${NSD_CB_AddString} $1 "選択肢 $4"
    ${NSD_CB_AddString} $2 "候補 $4 of 40"
    ${NSD_LB_AddString} $3 "一覧の項目 $4"
  ${Next}
  ${NSD_CB_SelectString} $1 "選択肢 7"
  ${NSD_CreateText} 8u 66u 120u 12u "一行の文字列"
  Pop $0
  ${NSD_CreateLink} 8u 98u 120u 12u "リンクの文字列"
  Pop $0
  ${NSD_CreateLabel} 8u 112u 120u 20u "とても長い説明文です。$\r$\n二行目もあります。"
  Pop $0
  EnableWindow $0 0
  nsDialogs::Show
FunctionEnd

SectionGroup /e "本体 && 資料"
  Section "!プログラム本体"
    SectionIn RO
    ${ForEach} $4 1 100 + 1
      DetailPrint "手順 $4: C:\試験\ファイル $4.txt は書き込みません, so nothing happens"
    ${Next}
  SectionEnd
  SectionGroup /e "言語"
    Section "日本語"
    SectionEnd
    Section /o "English"
    SectionEnd
    Section /o "一行に収まらないほど長い名前を持つ構成要素で、五十文字を越えているため、設定によっては途中までしか読まれないもの"
    SectionEnd
  SectionGroupEnd
  Section /o "Help & samples"
  SectionEnd
SectionGroupEnd
Section /o "ショートカット"
SectionEnd
