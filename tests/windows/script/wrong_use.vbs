' What a script may get wrong is an ordinary script error or is passed over. Ends with "passed".
Option Explicit

Dim manager
Set manager = CreateObject("Pelorin.TAManager")

Sub Expect(what, number)
  If Err.Number <> number Then
    WScript.Echo what & ": error " & Err.Number & " instead of " & number
    WScript.Quit 1
  End If
  Err.Clear
End Sub

On Error Resume Next
manager.NoSuchMember
Expect "unknown member", 438
manager.Install
Expect "missing argument", 450
manager.OnEvent "x", 2, "", Now, Now, "", "", Empty
Expect "text for a number", 13
manager.Parent = 5
Expect "number for an object", 0
Set manager.NTConnection = Nothing
Expect "nothing", 0
On Error GoTo 0

WScript.Echo "passed"
WScript.Quit 23
