' Makes the shop that the settings name, around today, with an appointment of today's before all others.
Option Explicit

Class User
    Public Nome
    Public Codigo
End Class

Dim shop, agenda, who

Set who = New User
who.Nome = "Ana"
who.Codigo = 7
Set shop = CreateObject("KOVA_N_Dados.clsBanco")
WScript.Echo "made: " & shop.CriarDemonstracao(Date)
WScript.Echo "opened: " & shop.Abrir
Set agenda = CreateObject("KOVA_N_Agenda.clsAgenda")
Set agenda.DadosDoUsuario = who
agenda.TipoDoAgendamento = 1
agenda.Situacao = 1
agenda.NomeOuRazaoSocialDoCliente = "Ana Prado"
agenda.CanaisDeComunicacaoDoCliente = "(11) 91234-5678"
agenda.NomeDoAnimal = "Bidu"
agenda.NumeroDoTipoDeServico = 1
agenda.CodigoDoServico = 1
agenda.CodigoDoFuncionario = 1
agenda.DataInicial = Date
agenda.HoraInicial = "06:00"
agenda.DataFinal = Date
agenda.HoraFinal = "06:30"
agenda.DadosValidados = True
WScript.Echo "booked: " & agenda.Adicionar & agenda.DescricaoDaFalha & agenda.DescricaoDoErro
