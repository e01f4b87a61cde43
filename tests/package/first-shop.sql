-- A shop as the first version of the schema kept it, in a file that an open program has a log beside: "Patas", a bath,
-- Lia who gives it, and an appointment.
pragma journal_mode = wal;
begin;
create table versao_do_esquema (versao integer not null primary key);
insert into versao_do_esquema values (1);
create table empresa (codigo integer primary key autoincrement, nome_fantasia text not null, razao_social text not
    null, cnpj text not null, endereco text not null, telefone text not null);
create table usuario (codigo integer primary key autoincrement, nome text not null, situacao integer not null default
    1);
create table tipo_de_servico (numero integer primary key autoincrement, nome text not null, nome_de_busca text not
    null, situacao integer not null default 1);
create table servico (codigo integer primary key autoincrement, nome text not null, nome_de_busca text not null,
    descricao text not null, numero_do_tipo_de_servico integer not null references tipo_de_servico (numero),
    duracao_em_minutos integer not null, preco_em_centavos integer not null, custo_em_centavos integer not null,
    quantidade_de_sessoes integer, situacao integer not null default 1);
create table funcionario (codigo integer primary key autoincrement, apelido text not null, nome text not null,
    nome_de_busca text not null, agendamentos_simultaneos integer not null default 1, situacao integer not null
    default 1);
create table especie (codigo integer primary key autoincrement, nome text not null, nome_de_busca text not null);
create table raca (codigo integer primary key autoincrement, codigo_da_especie integer not null references especie
    (codigo), nome text not null, nome_de_busca text not null);
create table feriado (codigo integer primary key autoincrement, nome text not null, dia integer, mes integer, data
    text);
create table cliente (codigo integer primary key autoincrement, tipo_de_pessoa text not null, apelido text not null,
    nome text not null, documento text not null, situacao integer not null default 1, vip integer not null default 0,
    categoria_da_curva_abc text not null, logradouro text not null, numero text not null, complemento text not null,
    bairro text not null, cidade text not null, uf text not null, cep text not null, endereco_completo text not null,
    endereco_completo_com_cep text not null, tipos_e_canais text not null, nome_de_busca text not null, texto_de_busca
    text not null);
create table canal_de_comunicacao (codigo integer primary key autoincrement, codigo_do_cliente integer not null
    references cliente (codigo), tipo text not null, canal text not null);
create table animal (codigo integer primary key autoincrement, codigo_do_cliente integer not null references cliente
    (codigo), nome text not null, sexo text not null, codigo_da_raca integer not null references raca (codigo), porte
    integer not null, cor text not null, microchip text, observacao text, situacao integer not null default 1,
    nome_de_busca text not null);
create table pacote (codigo integer primary key autoincrement, codigo_do_servico integer not null references servico
    (codigo), criado_em text not null, criado_por text not null);
create table agendamento (numero integer primary key autoincrement, data_inicial text not null, hora_inicial text not
    null, data_final text not null, hora_final text not null, tipo_do_agendamento integer not null, codigo_do_cliente
    integer references cliente (codigo), codigo_do_animal integer references animal (codigo), nome_do_cliente text not
    null default '', canais_do_cliente text not null default '', nome_do_animal text not null default '',
    sexo_do_animal text not null default '', especie_do_animal text not null default '', raca_do_animal text not null
    default '', cor_do_animal text not null default '', numero_do_tipo_de_servico integer not null references
    tipo_de_servico (numero), codigo_do_servico integer not null references servico (codigo), codigo_do_funcionario
    integer not null references funcionario (codigo), codigo_do_pacote integer references pacote (codigo), observacao
    text, transporte_buscar integer not null default 0, transporte_levar integer not null default 0, situacao integer
    not null, incluido_em text not null, incluido_por text not null, alterado_em text, alterado_por text,
    texto_de_busca text not null default '');
create table pre_venda (codigo integer primary key autoincrement, numero_do_agendamento integer not null,
    valor_em_centavos integer not null, situacao integer not null default 1, criada_em text not null);
create table auditoria (codigo integer primary key autoincrement, momento text not null, usuario text not null, tabela
    text not null, chave integer not null, operacao text not null, antes text, depois text);
create index agendamento_por_inicio on agendamento (data_inicial, hora_inicial, numero);
create index agendamento_por_funcionario on agendamento (codigo_do_funcionario, data_inicial);
create index agendamento_por_pacote on agendamento (codigo_do_pacote) where codigo_do_pacote is not null;
create index cliente_por_nome on cliente (nome_de_busca, codigo);
create index cliente_por_documento on cliente (documento);
create index canal_por_cliente on canal_de_comunicacao (codigo_do_cliente);
create index animal_por_cliente on animal (codigo_do_cliente);
create index animal_por_nome on animal (nome_de_busca, codigo);
create index animal_por_microchip on animal (microchip) where microchip is not null;
create index servico_por_tipo on servico (numero_do_tipo_de_servico);
create index raca_por_especie on raca (codigo_da_especie);
create index pre_venda_por_agendamento on pre_venda (numero_do_agendamento);
create index auditoria_por_chave on auditoria (tabela, chave);

insert into empresa values (1, 'Patas', 'Patas Ltda', '', '', '');
insert into tipo_de_servico values (4, 'Banho', 'banho', 1);
insert into servico values (1, 'Banho', 'banho', '', 4, 60, 5000, 1000, null, 1);
insert into funcionario values (1, 'Lia', 'Lia', 'lia', 1, 1);
insert into agendamento (numero, data_inicial, hora_inicial, data_final, hora_final, tipo_do_agendamento, nome_do_cliente,
    nome_do_animal, numero_do_tipo_de_servico, codigo_do_servico, codigo_do_funcionario, situacao, incluido_em, incluido_por,
    texto_de_busca)
values (1, '2026-11-20', '09:00', '2026-11-20', '10:00', 1, 'Zé', 'Rex', 4, 1, 1, 1, '2026-11-01 09:00:00', '1 - Ana',
    'ze' || char(10) || 'rex');
commit;
