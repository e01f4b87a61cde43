#include "family/demo/words.hpp"

namespace kova::family::words {

List WomensNames()
{
    static constexpr std::string_view list[] = {
        "Adriana", "Alice",      "Aline",  "Amélia",   "Ana Clara", "Andréia",  "Antônia", "Aparecida",
        "Beatriz", "Bruna",      "Camila", "Cecília",  "Cláudia",   "Cristina", "Daniela", "Débora",
        "Eduarda", "Elisângela", "Érica",  "Fernanda", "Flávia",    "Gabriela", "Helena",  "Inês",
        "Isabela", "Jéssica",    "Joana",  "Júlia",    "Larissa",   "Letícia",  "Lívia",   "Luciana",
        "Márcia",  "Maria José", "Mônica", "Natália",  "Patrícia",  "Rafaela",  "Renata",  "Simone",
        "Sônia",   "Tatiane",    "Tereza", "Úrsula",   "Vanessa",   "Verônica", "Vitória", "Yasmin",
    };
    return list;
}

List MensNames()
{
    static constexpr std::string_view list[] = {
        "Alexandre",  "Álvaro",  "André",        "Antônio",  "Augusto", "Bernardo", "Bruno",    "Caio",
        "Carlos",     "César",   "Cláudio",      "Davi",     "Diego",   "Eduardo",  "Élcio",    "Fábio",
        "Felipe",     "Flávio",  "Gérson",       "Gustavo",  "Heitor",  "Henrique", "Hugo",     "Ígor",
        "João Pedro", "Joaquim", "José Antônio", "Júlio",    "Leandro", "Leonardo", "Lucas",    "Luís",
        "Marcelo",    "Márcio",  "Mateus",       "Maurício", "Nélson",  "Otávio",   "Paulo",    "Pedro",
        "Rafael",     "Renato",  "Roberto",      "Rogério",  "Sérgio",  "Tiago",    "Vinícius", "Zacarias",
    };
    return list;
}

List Surnames()
{
    static constexpr std::string_view list[] = {
        "Almeida",  "Alves",   "Andrade",   "Araújo",    "Assunção",  "Barbosa",    "Barros",      "Batista",
        "Bragança", "Brandão", "Camargo",   "Cardoso",   "Carneiro",  "Carvalho",   "Conceição",   "Correia",
        "Dias",     "Duarte",  "Esteves",   "Farias",    "Fernandes", "Figueiredo", "Fonseca",     "Freitas",
        "Galvão",   "Gomes",   "Gonçalves", "Guimarães", "Leitão",    "Magalhães",  "Marques",     "Medeiros",
        "Melo",     "Menezes", "Moraes",    "Moreira",   "Nogueira",  "Paixão",     "Peçanha",     "Pinheiro",
        "Queirós",  "Ribeiro", "Sampaio",   "Santana",   "Siqueira",  "Teixeira",   "Vasconcelos", "Ximenes",
    };
    return list;
}

List Streets()
{
    static constexpr std::string_view list[] = {
        "Rua das Acácias",        "Rua do Ipê-Amarelo",     "Avenida das Hortênsias", "Rua Beija-Flor",
        "Rua Sabiá-Laranjeira",   "Travessa do Jasmim",     "Rua das Jabuticabeiras", "Avenida Beira-Rio",
        "Rua do Moinho",          "Alameda dos Jacarandás", "Rua da Estação Velha",   "Rua do Chafariz",
        "Avenida dos Imigrantes", "Rua Pôr do Sol",         "Rua Nascente",           "Rua das Paineiras",
        "Praça da Amizade",       "Rua do Relógio",         "Rua Três Marias",        "Rua da Cachoeira",
        "Alameda Primavera",      "Rua dos Bem-te-vis",     "Rua Pedra Azul",         "Avenida Águas Claras",
    };
    return list;
}

List Districts()
{
    static constexpr std::string_view list[] = {
        "Centro",     "Jardim das Flores", "Vila Nova Esperança", "Alto da Colina",  "Parque dos Pássaros",
        "Bela Vista", "Recanto Verde",     "Vila São José",       "Chácara do Lago", "Jardim América do Vale",
    };
    return list;
}

List Cities()
{
    static constexpr std::string_view list[] = {"Vale Sereno", "Vale Sereno", "Vale Sereno",
                                                "Pedra Bonita do Vale", "São Genésio"};
    return list;
}

List CompanyKinds()
{
    static constexpr std::string_view list[] = {"Canil",  "Gatil",   "Hotel para Cães",
                                                "Abrigo", "Fazenda", "Clube de Agility"};
    return list;
}

List CompanyNames()
{
    static constexpr std::string_view list[] = {
        "Estrela do Vale", "Quatro Patas", "Céu Azul", "Bom Pastor", "Lua Cheia", "Três Irmãos",
        "Patas de Ouro",   "Novo Lar",     "Aurora",   "Ponte Alta", "Boa Vida",  "Serra Dourada",
    };
    return list;
}

List FemaleAnimals()
{
    static constexpr std::string_view list[] = {
        "Amora", "Belinha", "Bolota",  "Cacau",  "Chiquinha", "Dalila",   "Filó",   "Florzinha",
        "Frida", "Jade",    "Jujuba",  "Lola",   "Luna",      "Maçã",     "Margô",  "Mel",
        "Mimi",  "Nina",    "Pandora", "Paçoca", "Pérola",    "Princesa", "Safira", "Violeta",
    };
    return list;
}

List MaleAnimals()
{
    static constexpr std::string_view list[] = {
        "Apolo", "Barão",  "Bidu",   "Bolinha", "Café",      "Chocolate", "Cometa", "Dengoso",
        "Duque", "Faísca", "Farofa", "Fumaça",  "Garibaldo", "Joca",      "Leão",   "Marrom",
        "Nico",  "Pingo",  "Pipoca", "Quindim", "Romeu",     "Simba",     "Tobias", "Zé Colmeia",
    };
    return list;
}

List Colours()
{
    static constexpr std::string_view list[] = {"Preto",          "Branco",  "Caramelo", "Marrom",
                                                "Cinza",          "Malhado", "Tigrado",  "Creme",
                                                "Preto e branco", "Dourado"};
    return list;
}

List AnimalRemarks()
{
    static constexpr std::string_view list[] = {
        "Alérgico a perfume.",
        "Tem medo de secador.",
        "Não gosta que mexam nas patas.",
        "Usar focinheira.",
        "Cardíaco: pausas no banho.",
        "Convive bem com outros animais.",
        "Idoso, manusear com cuidado.",
        "Diabético.",
    };
    return list;
}

List AppointmentRemarks()
{
    static constexpr std::string_view list[] = {
        "Cliente pediu para ligar quando terminar.",
        "Passar perfume neutro.",
        "Trazer carteira de vacinação.",
        "Laço azul.",
        "Chegará dez minutos antes.",
        "Aparar as unhas.",
        "Confirmar por telefone na véspera.",
        "Animal em jejum.",
    };
    return list;
}

} // namespace kova::family::words
