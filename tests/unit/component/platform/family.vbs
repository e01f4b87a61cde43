' The family's components as a program uses them that binds late: a shop is made and opened, looked at, written into.
'   family.vbs FILE CONTAINER
Option Explicit

Class User
    Public Nome
    Public Codigo
End Class

Dim said, who

Sub Tell(what, value)
    If Err.Number = 0 Then
        said.WriteLine what & ": " & value
    Else
        said.WriteLine what & " fails: " & Err.Number & " " & Err.Description
    End If
    Err.Clear
End Sub

Sub MakeShop
    On Error Resume Next
    Dim shop
    Set shop = CreateObject("KOVA_N_Dados.clsBanco")
    Tell "there is one", shop.Existe
    Tell "made around a date", shop.CriarDemonstracao(#11/23/2026#)
    Tell "there is one", shop.EXISTE
    Tell "opened", shop.Abrir
    Tell "its name", shop.NomeFantasia
    Tell "a second one", shop.CriarDemonstracao("23/11/2026")
    Tell "why", InStr(shop.DescricaoDoErro, "loja.db") > 0
End Sub

' Every class of the library.
Sub CreateAll
    On Error Resume Next
    Dim name, made
    For Each name In Array("KOVA_N_Agenda.clsAgenda", "KOVA_N_TipoDeServ.clsTiposDeServ", _
            "KOVA_N_Funcionarios.clsFuncionarios", "KOVA_N_Empresa.clsEmpresa", _
            "KOVA_N_ClientAnim.clsClientes", "KOVA_N_ClientAnim.clsAnimais", _
            "KOVA_N_Servicos.clsServicos", "KOVA_N_Feriados.clsFeriados", _
            "KOVA_N_EspecRacas.clsEspecies", "KOVA_N_EspecRacas.clsRacas", _
            "KOVA_N_SO.clsObterVersaoDoSO", "KOVA_N_Dados.clsBanco", _
            "KOVA_N_Dados.clsImpressoes")
        Set made = Nothing
        Set made = CreateObject(name)
        Tell name, Not (made Is Nothing)
    Next
End Sub

Function Day(agenda)
    Day = agenda.Selecionar(2, 0, 0, "", #11/23/2026#, 0, 0, 0)
End Function

Sub LookAtTheDay
    On Error Resume Next
    Dim agenda, rows, page, field, seen
    Set agenda = CreateObject("KOVA_N_Agenda.clsAgenda")
    Tell "the day", Day(agenda)
    Set rows = agenda.ResultadoDaSelecaoEmRecordSet
    Tell "it has rows", rows.RecordCount > 10
    Set field = rows("NomeDoAnimal")
    Tell "a field", field.Name
    Tell "the same by its number", (rows.Fields(0).Value = rows(rows.fields.item(0).name))
    seen = 0
    Do Until rows.EOF
        seen = seen + 1
        rows.MoveNext
    Loop
    Tell "all were seen", seen = rows.RecordCount
    rows.MoveNext
    Tell "behind the last", ""
    Set field = rows.Fields("Nada")
    Tell "no such field", ""
    agenda.Selecionar 1, 3, 0, "", "23/11/2026", 0, 0, 0
    agenda.PaginarResultadoDaSelecaoEmRecordset 2, page
    Tell "a page by reference", page.RecordCount
    agenda.Selecionar 2, 0
    Tell "few arguments", ""
    Tell "no day", agenda.Selecionar(2, 0, 0, "", "nunca", 0, 0, 0)
    Tell "why", agenda.DescricaoDoErro
End Sub

Sub Book(agenda, animal, employee)
    agenda.TipoDoAgendamento = 1
    agenda.Situacao = 1
    agenda.NomeOuRazaoSocialDoCliente = "José Antônio"
    agenda.CanaisDeComunicacaoDoCliente = "(11) 91234-5678"
    agenda.NomeDoAnimal = animal
    agenda.NumeroDoTipoDeServico = 1
    agenda.CodigoDoServico = 1
    agenda.CodigoDoFuncionario = employee
    agenda.DataInicial = #11/24/2026#
    agenda.HoraInicial = "10:00"
    agenda.DataFinal = #11/24/2026#
    agenda.HoraFinal = "10:30"
    agenda.DadosValidados = True
End Sub

Sub WriteAnAppointment
    On Error Resume Next
    Dim agenda, found, table(2, 0)
    Set agenda = CreateObject("KOVA_N_Agenda.clsAgenda")
    Book agenda, "Bidu", 1
    Tell "without a user", agenda.Adicionar
    Tell "said", agenda.DescricaoDoErro
    Set agenda.DadosDoUsuario = who
    Tell "booked", agenda.Adicionar
    Tell "said", agenda.DescricaoDaFalha & agenda.DescricaoDoErro & agenda.NomeDoCampoValidado
    table(0, 0) = "24/11/2026"
    table(1, 0) = "11:00"
    table(2, 0) = "11:30"
    agenda.ListaDasDatasEHorasSelecionadas = table
    Tell "a table", ""
    agenda.ListaDasDatasEHorasSelecionadas = Array(1, 2)
    Tell "a row", ""
    agenda.Selecionar 2, 0, 0, "Bidu", "24/11/2026", 0, 0, 0
    Set found = agenda.ResultadoDaSelecaoEmRecordSet
    Tell "found again", found.RecordCount
End Sub

Sub OpenTheList
    On Error Resume Next
    Dim agenda
    Set agenda = CreateObject("KOVA_A_Agenda.clsAgenda")
    Set agenda.DadosDoUsuario = who
    agenda.NomeDaAplicacao = "Pet da Ana"
    agenda.AbrirLista 1, CLng(WScript.Arguments(1))
    Tell "the list", ""
End Sub

Set said = CreateObject("Scripting.FileSystemObject").CreateTextFile(WScript.Arguments(0), True, True)
Set who = New User
who.Nome = "Ana"
who.Codigo = 7
MakeShop
CreateAll
LookAtTheDay
WriteAnAppointment
OpenTheList
said.Close
