' What a program does that binds late: it knows the class by its name and the members by theirs.
'   agenda.vbs FILE CONTAINER
Option Explicit

Class User
    Public Nome
    Public Codigo
End Class

Dim said

Sub Tell(what)
    said.WriteLine what & ": " & Err.Number & " " & Err.Description
    Err.Clear
End Sub

Sub UseAgenda
    On Error Resume Next
    Dim agenda, who
    Set agenda = CreateObject("KOVA_A_Agenda.clsAgenda")
    Tell "create"
    Set who = New User
    who.Nome = "Ana"
    who.Codigo = 7
    Set agenda.dadosdousuario = who
    Tell "user"
    agenda.NomeDaAplicacao = "Pet da Ana"
    Tell "name"
    who.Nome = agenda.NomeDaAplicacao
    Tell "reading what is only written"
    agenda.DadosDoUsuario = 5
    Tell "a number as the user"
    agenda.Fechar
    Tell "no such member"
    agenda.AbrirLista 1
    Tell "one argument"
    agenda.ABRIRLISTA 1, CLng(WScript.Arguments(1))
    Tell "list"
End Sub

Set said = CreateObject("Scripting.FileSystemObject").CreateTextFile(WScript.Arguments(0), True, True)
UseAgenda
said.Close
